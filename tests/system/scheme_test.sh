#!/usr/bin/env bash
# The built program under a desktop that prefers dark, then light, then dark again: it opens in the
# desktop's colours and follows them while it runs, and its state stays.
# usage: scheme_test.sh PROGRAM PORTAL
set -euo pipefail
[ -n "${ON_A_BUS_OF_ITS_OWN:-}" ] || ON_A_BUS_OF_ITS_OWN=1 exec dbus-run-session -- "$0" "$@"
program=$(realpath "$1")
. "$(dirname "$0")/on_x.sh"

coproc portal { "$2"; }
started+=("$portal_PID")
read -r answer <&"${portal[0]}"
[ "$answer" = ready ] || fail "no portal"
tell() {
  echo "$*" >&"${portal[1]}"
  read -r answer <&"${portal[0]}"
  [ "$answer" = done ] || fail "the portal: $*"
}

# Where there is nothing but the window's ground, and a row that can be chosen.
ground='100 20 30 575'
dark='#1E1E1E'
light='#EFEFEF'

tell color-scheme 1
tell accent-color 1 0.8 0
start
until_there 2000 "$dark" $ground
until_there 5000 '#383838' 100 50 300 70       # a list
until_there 20 '#EEEEEE' 100 370 50 180        # the notes' names
xdotool key alt+e
window=root until_there 20 '#8C8C8C' 150 125 68 0  # a menu's entries, which are disabled
xdotool key Escape
click 38 200
click 300 218
until_there 8 "$green" 15 20 15 188
chosen='60 6 280 215'
until_there 200 '#FFCC00' $chosen
until_there 5 '#000000' 370 14 210 211         # its letters' middles

tell color-scheme 2
until_there 2000 "$light" $ground
tell accent-color 0.8 0.2 0.6
until_there 200 '#CC3399' $chosen
tell forged color-scheme 1                     # not the portal's word: it stays light
tell accent-color 0.2 0.6 0.2
until_there 200 '#339933' $chosen
until_there 2000 "$light" $ground
tell restarted color-scheme 1                  # another portal, which is asked anew and heard
until_there 2000 "$dark" $ground
tell accent-color 0.8 0.2 0.6
until_there 200 '#CC3399' $chosen
until_there 8 "$green" 15 20 15 188
tell accent-color 2 -1 7                       # what makes no sense is no preference
until_there 200 '#308CC6' $chosen
tell accent-color 0.8 0.2 0.6
until_there 200 '#CC3399' $chosen
tell color-scheme dark
until_there 2000 "$light" $ground
tell accent-color 5
until_there 200 '#308CC6' $chosen
until_there 8 "$green" 15 20 15 188
xdotool key ctrl+q
ends_well "following the scheme"

start
until_there 2000 "$light" $ground
xdotool key ctrl+q
ends_well "answers that make no sense"

tell color-scheme 1
tell mute
start
until_there 2000 "$light" $ground
xdotool key ctrl+q
ends_well "a portal that does not answer"
echo "Opened dark, and followed the desktop from dark to light and back."
