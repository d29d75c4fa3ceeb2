#!/usr/bin/env bash
# Installs the program into a scratch root, makes the Debian package, and starts the program from
# the package: check.sh [BUILD_DIR], everything being built there.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/screen.sh

built=$(realpath "${1:-build/ci}")
id=org.example.FirstStep
scratch=$(mktemp -d)
server='' shown=''
trap 'kill $shown $server 2>/dev/null || true; wait; rm -rf "$scratch"' EXIT

fail() {
  echo "$1" >&2
  exit 1
}

# Succeeds if the installed tree $1 is complete and a desktop can make sense of it.
check_tree() {
  local share=$1/share file
  for file in "$1/bin/firststep" "$share/doc/firststep/"{README.md,docs/physics.md}; do
    [[ -s $file ]] || fail "$file is missing."
  done
  for file in $(grep -o '[a-z]*\.png' "$share/metainfo/$id.metainfo.xml"); do
    [[ -s $share/doc/firststep/docs/$file ]] || fail "The description shows $file, which is missing."
  done
  desktop-file-validate "$share/applications/$id.desktop"
  grep -qx "Icon=$id" "$share/applications/$id.desktop" || fail "The desktop file has another icon."
  appstreamcli validate --no-net "$share/metainfo/$id.metainfo.xml"
  # This one sees whether the description finds its desktop file.
  appstreamcli validate-tree --no-net "$(dirname "$1")"
  file --brief "$share/icons/hicolor/scalable/apps/$id.svg" | grep SVG || fail "The icon is no SVG."
  grep -qF "$id" "$1/bin/firststep" || fail "The window does not tell the desktop its name, $id."
}

# Starts the program $1 on a display of its own and ends it when its window is there, under the
# name by which a desktop finds the icon.
check_start() {
  local title
  open_screen "$scratch" || fail "The virtual display did not start: $(<"$scratch/server.log")"
  QT_QPA_PLATFORM=xcb "$1" >"$scratch/program.log" 2>&1 &
  shown=$!
  title=$(timeout 30 xdotool search --sync --onlyvisible --class '^firststep$' getwindowname) || true
  [[ $title == "first explanation" ]] ||
    fail "The program did not show its window: $(<"$scratch/program.log")"
}

DESTDIR=$scratch/installed cmake --install "$built" --prefix /usr >/dev/null
check_tree "$scratch/installed/usr"

cpack --config "$built/CPackConfig.cmake" -B "$scratch/package" >"$scratch/cpack.log" ||
  fail "$(<"$scratch/cpack.log")"
package=$(echo "$scratch"/package/*.deb)
dpkg-deb --info "$package"
for library in libc6 'libqt6core6(t64)?' libqt6gui6 libqt6widgets6; do # t64: its name in Debian 13
  dpkg-deb --field "$package" Depends | grep -qwE "$library" ||
    fail "The package does not ask for $library."
done

# All papers tell the same version, and Debian finds no error in the package.
version=$(dpkg-deb --field "$package" Version)
[[ $(dpkg-parsechangelog -l packaging/changelog -S Version) == "$version" ]] &&
  grep -m1 '^## ' CHANGELOG.md | grep -qF "$version" &&
  grep -m1 '<release ' packaging/$id.metainfo.xml | grep -qF "\"$version\"" &&
  grep -qF "firststep $version" packaging/firststep.1 || fail "A paper tells another version."
grep -qxF "$(<COPYRIGHT)" README.md || fail "The README says another thing about rights."
lintian --fail-on error "$package" || fail "lintian finds errors in the package."

dpkg-deb --extract "$package" "$scratch/unpacked"
diff <(cd "$scratch/installed" && find . | sort) <(cd "$scratch/unpacked" && find . | sort) ||
  fail "The package holds other files than the installation."
check_start "$scratch/unpacked/usr/bin/firststep"
echo "The package is good: $(basename "$package")"
