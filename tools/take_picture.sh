#!/usr/bin/env bash
# Opens the program on the X server of $DISPLAY, ticks C, E and G, chooses the first row, and saves a
# picture of the window.
# usage: take_picture.sh PROGRAM PICTURE
set -euo pipefail
"$1" &
program=$!
trap 'kill $program 2>/dev/null || true' EXIT
window=$(timeout 30 xdotool search --sync --onlyvisible --pid $program --name '^Orrel Pitchsieve$' | head -1)
eval "$(xdotool getwindowgeometry --shell "$window")"
above=$((HEIGHT - 605)) # the menu bar
for place in '38 200' '38 320' '38 411' '300 217'; do
  set -- "$1" "$2" $place
  xdotool mousemove --window "$window" "$3" $(($4 + above)) click 1
  sleep 0.3
done
import -window "$window" "$2"
