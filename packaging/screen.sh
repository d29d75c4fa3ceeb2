# A virtual display, for run, docs/pictures.sh and packaging/check.sh. Sourced by them.

# Succeeds once "$@" does, while process $1 lives, within 30 seconds: await PROCESS COMMAND...
await() {
  local process=$1 end=$((SECONDS + 30))
  shift
  until "$@"; do
    kill -0 "$process" 2>/dev/null && ((SECONDS < end)) || return 1
    sleep 0.1
  done
}

# Starts a display with its files in the folder $1, makes it the one of all programs started after,
# and sets `server` to its process. Fails when it does not come up.
open_screen() {
  rm -f "$1/display"
  Xvfb -displayfd 3 -screen 0 1366x768x24 -noreset 3>"$1/display" >"$1/server.log" 2>&1 &
  server=$!
  await $server test -s "$1/display" || return 1
  DISPLAY=:$(<"$1/display")
  export DISPLAY
  unset WAYLAND_DISPLAY
}
