#!/usr/bin/env bash
# Takes the pictures of the README from the real window: docs/pictures.sh, then look at docs/*.png.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
source packaging/setup.sh
source packaging/screen.sh

need build run screen test
build release firststep

scratch=$(mktemp -d)
server='' program=''
trap 'kill $program $server 2>/dev/null || true; wait; rm -rf "$scratch"' EXIT

window_is_shown() { xdotool search --onlyvisible --name "^first explanation$" >/dev/null 2>&1; }

# Starts the program on a display of its own, lets "$2..." act on it and takes the picture $1.
picture() {
  local name=$1
  shift
  open_screen "$scratch"
  build/release/firststep 2>/dev/null &
  program=$!
  await $program window_is_shown
  sleep 1
  "$@"
  sleep 0.5
  xdotool mousemove 1300 700
  import -window root -crop 866x730+0+0 +repage -strip +dither -colors 128 "docs/$name.png"
  kill $program $server
  wait $program $server 2>/dev/null || true
}

keys() { for key in "$@"; do xdotool key "$key"; sleep 0.1; done; }
click() { xdotool mousemove "$1" "$2" click 1; sleep 0.3; }

curvature() { # the circle at a point between crest and trough
  click 72 8
  keys Down Return
  click 295 278
}

guess() { # a force from the crest, forward and down
  click 72 8
  keys Down Down Return
  xdotool mousemove 221 265 keydown shift mousedown 1 mousemove 330 360
  sleep 0.2
  xdotool mouseup 1 keyup shift
}

factors() {
  click 160 8
  click 60 686
}

# Sets the scroll bar at ($1, $2) to its least value and then moves it by the keys after that.
turn() {
  click "$1" "$2"
  keys Home "${@:3}"
}

evolution() { # from rest, slowly, 20 steps to a unit of time: the labels read 3, 5 and 7
  turn 641 660
  turn 368 648 $(printf 'Right %.0s' {1..37}) # a tangential acceleration of 0.2
  click 160 8
  click 60 660
  turn 230 624 Next
  click 150 622
  xdotool key --delay 20 --repeat 275 space # step by step, the same on every machine
}

picture opening true
picture curvature curvature
picture guess guess
picture factors factors
picture evolution evolution
