#!/usr/bin/env bash
# The built program on a real X server: it opens, is clicked, shows rows and stars, and ends with
# status 0 by menu and by key, also behind a failure that no one reads; when the display goes or was
# never there it ends with a status, and does not crash.
# usage: x_server_test.sh PROGRAM [LOCALE OF THE PROGRAM]
set -euo pipefail
program=$(realpath -s "$1")
locale=${2:-C.UTF-8}
. "$(dirname "$0")/on_x.sh"

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

# A failure is told on a standard error whose reader has gone, and the program lives on.
mkfifo "$work/pipe"
exec 5<>"$work/pipe" 6>"$work/pipe" 5>&-
start_on_a_broken_library 2>&6
read_box
end_the_window "a failure that no one reads"

start
kill "$server"                                 # the display is taken away
status=0
wait "$id" || status=$?
[ "$status" -eq 1 ] || fail "status $status when the display went"

status=0
DISPLAY=:98765 "$program" >"$work/out" 2>&1 || status=$?
[ "$status" -eq 1 ] || fail "status $status without a display"
[ "$(wc -l <"$work/out")" -eq 1 ] || fail "more than a line without a display: $(cat "$work/out")"
echo "Opened, clicked, starred and ended in every way."
