# What run, test and .ci/run share: getting the packages that they need, and building. Sourced by
# them, at the top of the tree.

# Succeeds if PROBE, the last column of packages.txt, is there, whoever put it there.
there() {
  case $1 in
    pkg:*) pkg-config --exists "${1#pkg:}" ;;
    python:*) python3 -c "import ${1#python:}" ;;
    font:*) fc-list : family | grep -q "${1#font:}" ;;
    *) command -v "$1" ;;
  esac >/dev/null 2>&1
}

# Prints those packages of the groups $* that are not installed.
missing_packages() {
  local packages=() probes=() installed='' group package probe i
  while read -r group package probe; do
    [[ " $* " == *" $group "* ]] || continue
    packages+=("$package") probes+=("$probe")
  done <packaging/packages.txt
  if command -v apt-get >/dev/null; then
    # One call for all: this stands before every run and every test.
    installed=$(dpkg-query -W -f '${Package}=${db:Status-Status} ' "${packages[@]}" 2>/dev/null || true)
  fi
  for i in "${!packages[@]}"; do
    if command -v apt-get >/dev/null; then
      [[ " $installed" == *" ${packages[i]}=installed "* ]] && continue
    fi
    # Someone may have brought it here by another way, npm with a newer node above all.
    there "${probes[i]}" || echo "${packages[i]}"
  done
}

# Installs what is missing of the groups $*, or says what is missing and ends the script.
need() {
  local missing as_root=()
  mapfile -t missing < <(missing_packages "$@")
  ((${#missing[@]})) || return 0

  if ! command -v apt-get >/dev/null; then
    echo "There is no apt on this system, and it lacks what these Debian packages hold:" >&2
    printf '  %s\n' "${missing[@]}" >&2
    echo "Install them, or what stands for them here, and start $0 again." >&2
    exit 1
  fi

  echo "Installing, which may take some minutes: ${missing[*]}"
  if ((EUID != 0)) && command -v sudo >/dev/null; then
    as_root=(sudo)
    [[ -t 0 ]] || as_root=(sudo -n) # nobody is there to be asked for a password
  fi
  as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
  # A foreign package source that cannot be reached is no reason to give up.
  "${as_root[@]}" update </dev/null || echo "apt-get update failed; trying with the lists at hand" >&2
  if ! "${as_root[@]}" install --no-install-recommends -y "${missing[@]}" </dev/null >/dev/null; then
    echo "These packages are needed and could not be installed: ${missing[*]}" >&2
    exit 1
  fi
}

# Brings TARGET of the preset up to date: build PRESET TARGET.
build() {
  local dir=build/$1
  # Ninja configures again by itself when a CMakeLists.txt has changed, but not for the presets.
  if [[ ! -e $dir/build.ninja || CMakePresets.json -nt $dir/build.ninja ]]; then
    cmake --preset "$1"
  fi
  cmake --build "$dir" --target "$2"
}

# Brings the npm packages that work a browser to what their lock file names.
need_npm() {
  local folder=browsers
  [[ $folder/node_modules/.package-lock.json -nt $folder/package-lock.json ]] ||
    npm ci --prefix "$folder" --no-audit --no-fund
}
