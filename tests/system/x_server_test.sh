#!/usr/bin/env bash
# The built program on a real X server: it opens, is clicked, shows rows and stars, and ends with
# status 0 by menu and by key; when the display goes or was never there it ends with a status, and
# does not crash.
# usage: x_server_test.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
work=$(mktemp -d)
started=()
trap 'for id in "${started[@]}"; do kill "$id" 2>/dev/null || true; done; rm -rf "$work"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

unset WAYLAND_DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1000x900x24 >"$work/xvfb.log" 2>&1 &
started+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || fail "no X server: $(cat "$work/xvfb.log")"
export DISPLAY=:$(tr -d '\n' <"$work/display")

start() {
  "$program" 2>"$work/stderr" &
  id=$!
  started+=("$id")
  window=$(timeout 20 xdotool search --sync --onlyvisible --pid "$id" --name '^Orrel Pitchsieve$' | head -1)
  [ -n "$window" ] || fail "no window"
  xdotool windowfocus --sync "$window"
  # The content area lies below the menu bar, and is 605 high.
  eval "$(xdotool getwindowgeometry --shell "$window")"
  above=$((HEIGHT - 605))
  [ "$WIDTH" -eq 615 ] || fail "the window is $WIDTH wide"
}
click() { xdotool mousemove --window "$window" "$1" $(($2 + above)) click 1; }
# Pixels of a colour in a rectangle of the content area.
pixels() {
  import -window "$window" -crop "$2x$3+$4+$(($5 + above))" "$work/part.png"
  convert "$work/part.png" -fill black +opaque "$1" -fill white -opaque "$1" -format '%[fx:round(mean*w*h)]' info:
}
# Waits until such pixels are there, or are gone: until COUNT-OR-MORE colour w h x y
until_there() { for _ in $(seq 100); do [ "$(pixels "${@:2}")" -ge "$1" ] && return; sleep 0.05; done; fail "not there: $*"; }
until_gone() { for _ in $(seq 100); do [ "$(pixels "$@")" -eq 0 ] && return; sleep 0.05; done; fail "still there: $*"; }
ends_well() {
  local status=0
  wait "$id" || status=$?
  [ "$status" -eq 0 ] || fail "status $status after $1: $(cat "$work/stderr")"
}

green='#008100'
start
for y in 200 320 411; do click 38 "$y"; done
until_gone "$green" 15 360 15 188
click 300 218                                  # the first row: a scale with C, E and G
until_there 8 "$green" 15 20 15 188           # C
until_there 8 "$green" 15 20 15 308           # E
until_there 8 "$green" 15 20 15 398           # G
until_gone "$green" 15 20 15 218               # no C sharp
click 38 92                                    # other roots: the rows go, and the stars with them
until_gone "$green" 15 360 15 188
xdotool key ctrl+q
ends_well "Ctrl+Q"

start
xdotool key alt+f
xdotool key --delay 100 q
ends_well "the menu"

start
kill "${started[0]}"                            # the display is taken away
status=0
wait "$id" || status=$?
[ "$status" -eq 1 ] || fail "status $status when the display went"

status=0
DISPLAY=:98765 "$program" >"$work/out" 2>&1 || status=$?
[ "$status" -eq 1 ] || fail "status $status without a display"
[ "$(wc -l <"$work/out")" -eq 1 ] || fail "more than a line without a display: $(cat "$work/out")"
echo "Opened, clicked, starred and ended in every way."
