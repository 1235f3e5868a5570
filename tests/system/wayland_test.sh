#!/usr/bin/env bash
# The built program on a Wayland compositor: on one without a screen it opens, tells what it is, and
# ends; on one whose screen is a window of an X server it is clicked and typed into as on_x.sh does.
# usage: wayland_test.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
. "$(dirname "$0")/on_x.sh"

# Starts a compositor: compositor ARGUMENT...
compositor() {
  rm -f "$work/wayland"
  weston --no-config --idle-time=0 --socket=wayland "$@" >"$work/weston.log" 2>&1 &
  compositor=$!
  started+=("$compositor")
  for _ in $(seq 100); do [ -S "$work/wayland" ] && return; sleep 0.05; done
  fail "no compositor: $(cat "$work/weston.log")"
}
# Starts the program, which writes down what it says to the compositor.
start_there() {
  QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY=wayland WAYLAND_DEBUG=1 "$program" 2>"$work/stderr" &
  id=$!
  started+=("$id")
}
said() { grep -q -e "-> .*$1" "$work/stderr"; }
until_said() { for _ in $(seq 200); do said "$1" && return; sleep 0.05; done; fail "never said: $1"; }

compositor --backend=headless-backend.so
start_there
until_said 'wl_surface@[0-9]*.attach(wl_buffer'
said 'xdg_toplevel@[0-9]*.set_title("Orrel Pitchsieve")' || fail "no title"
said 'xdg_toplevel@[0-9]*.set_app_id("orrel-pitchsieve")' || fail "no application id"
# 64 by 64 to 32000 by 32000, and the menu bar above.
said 'xdg_toplevel@[0-9]*.set_min_size(64, 8[0-9])' || fail "no least size"
said 'xdg_toplevel@[0-9]*.set_max_size(32000, 320[0-9][0-9])' || fail "no greatest size"
until_said 'xdg_surface@[0-9]*.ack_configure'
kill "$compositor"                             # the display is taken away
status=0
wait "$id" || status=$?
[ "$status" -eq 1 ] || fail "status $status when the compositor went: $(tail -3 "$work/stderr")"

# With this shell a window fills the screen, so its content area begins below its menu bar.
compositor --backend=x11-backend.so --width=700 --height=700 --shell=kiosk-shell.so
window=$(sed -n 's/.* window id \([0-9]*\)$/\1/p' "$work/weston.log")
start_there
until_said 'xdg_toplevel@[0-9]*.set_min_size'
above=$(($(sed -n 's/.*set_min_size(64, \([0-9]*\)).*/\1/p' "$work/stderr") - 64))
until_there 2000 '#EFEFEF' 100 20 30 575
xdotool windowfocus --sync "$window"
for y in 200 320 411; do click 38 "$y"; done
click 300 218                                  # the first row: a scale with C, E and G
until_there 8 "$green" 15 20 15 188           # C
until_there 8 "$green" 15 20 15 308           # E
until_there 8 "$green" 15 20 15 398           # G
until_gone "$green" 15 20 15 218               # no C sharp
xdotool key Escape
until_gone "$green" 15 360 15 188
xdotool key ctrl+q
ends_well "Ctrl+Q"
echo "Opened, clicked, starred and ended on Wayland."
