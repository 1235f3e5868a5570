#!/usr/bin/env bash
# The built program where Qt's own platform theme follows the desktop too: the settings portal and the
# theme tell of a flip in either order, at once or one late, and the window ends in the scheme that
# both have.
# usage: platform_theme_test.sh PROGRAM PORTAL
set -euo pipefail
[ -n "${ON_A_BUS_OF_ITS_OWN:-}" ] || ON_A_BUS_OF_ITS_OWN=1 exec dbus-run-session -- "$0" "$@"
program=$(realpath "$1")
. "$(dirname "$0")/on_x.sh"
export HOME=$work QT_QPA_PLATFORMTHEME=gtk3

coproc portal { "$2"; }
started+=("$portal_PID")
read -r answer <&"${portal[0]}"
[ "$answer" = ready ] || fail "no portal"
by_portal() {
  case $1 in dark) echo color-scheme 1 ;; light) echo color-scheme 2 ;; esac >&"${portal[1]}"
  read -r answer <&"${portal[0]}"
}
by_theme() {
  case $1 in dark) echo 'Net/ThemeName "Adwaita-dark"' ;; light) echo 'Net/ThemeName "Adwaita"' ;; esac >"$work/theme"
  [ -z "${daemon:-}" ] || kill -HUP "$daemon"
}
# Dark is the program's own or the theme's.
ground='100 20 30 575'
has() {
  case $1 in
    dark) [ $(($(pixels '#1E1E1E' $ground) + $(pixels '#323232' $ground))) -eq 2000 ] ;;
    light) [ "$(pixels '#EFEFEF' $ground)" -eq 2000 ] ;;
  esac
}
comes_to() {
  for _ in $(seq 100); do has "$1" && sleep 0.3 && has "$1" && return; sleep 0.05; done
  fail "not $*"
}

by_portal dark
by_theme dark
xsettingsd -c "$work/theme" 2>"$work/xsettingsd.log" &
daemon=$!
started+=("$daemon")
start
comes_to dark "at first"
for colour in none '0.8 0.2 0.6'; do
  [ "$colour" = none ] || { echo "accent-color $colour" >&"${portal[1]}"; read -r answer <&"${portal[0]}"; }
  for late in 0 0.5; do
    for order in "by_portal by_theme" "by_theme by_portal"; do
      for scheme in light dark; do
        set -- $order
        "$1" "$scheme"
        sleep "$late"
        "$2" "$scheme"
        comes_to "$scheme" "$order, $late s later, accent $colour"
      done
    done
  done
done
xdotool key ctrl+q
ends_well "following the theme"
echo "Followed the desktop where its portal and Qt's theme both tell."
