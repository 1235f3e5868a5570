# For the tests of the built program on a real X server, which source it with $program set: brings up
# a server of their own, and what a user does there. Everything goes when the script ends.

work=$(mktemp -d)
started=()
trap 'for id in "${started[@]}"; do kill "$id" 2>/dev/null || true; done; rm -rf "$work"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

unset WAYLAND_DISPLAY QT_QPA_PLATFORM
# The desktop of whoever runs this has no say in what the window looks like.
[ -n "${ON_A_BUS_OF_ITS_OWN:-}" ] || export DBUS_SESSION_BUS_ADDRESS=disabled:
export XDG_RUNTIME_DIR=$work LC_ALL=C.UTF-8
exec 3<>"$work/display"
Xvfb -displayfd 3 -noreset -screen 0 1000x900x24 >"$work/xvfb.log" 2>&1 &
server=$!
started+=("$server")
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
[ -s "$work/display" ] || fail "no X server: $(cat "$work/xvfb.log")"
DISPLAY=:$(tr -d '\n' <"$work/display")
export DISPLAY

# Starts the program and waits for its window.
start() {
  LC_ALL=${locale:-C.UTF-8} "$program" 2>"$work/stderr" &
  id=$!
  started+=("$id")
  window=$(timeout 20 xdotool search --sync --onlyvisible --pid "$id" --name '^Orrel Pitchsieve$' | head -1)
  [ -n "$window" ] || fail "no window"
  xdotool windowfocus --sync "$window"
  # The content area lies below the menu bar, and is 605 high.
  eval "$(xdotool getwindowgeometry --shell "$window")"
  above=$((HEIGHT - 605))
  [[ $(xprop -id "$window" _NET_WM_ICON) == *'Icon (32 x 32)'* ]] || fail "the window has no icon"
  [ "$WIDTH" -eq 615 ] || fail "the window is $WIDTH wide"
}
# Starts the program beside a library that it fails at: a box stands before the window.
start_on_a_broken_library() {
  mkdir -p "$work/bin/Resources"
  cp "$program" "$work/bin/program"
  printf 'a\nb\nshort' >"$work/bin/Resources/Orrel Scales.csv"
  LC_ALL=${locale:-C.UTF-8} "$work/bin/program" &
  id=$!
  started+=("$id")
}
# The program's window, or a box of it: window_of_width PATTERN prints it once it is there.
window_of_width() {
  for _ in $(seq 200); do
    for found in $(xdotool search --onlyvisible --pid "$id" --name '^Orrel Pitchsieve$' 2>/dev/null); do
      eval "$(xdotool getwindowgeometry --shell "$found" 2>/dev/null)"
      # shellcheck disable=SC2254
      case $WIDTH in $1) echo "$found" && return ;; esac
    done
    sleep 0.05
  done
  fail "no such window: $1"
}
# Dismisses the box that stands before the window.
read_box() {
  box=$(window_of_width '[!6]*')
  xdotool windowfocus --sync "$box" key Return
  for _ in $(seq 100); do xdotool search --onlyvisible --pid "$id" 2>/dev/null | grep -qx "$box" || return 0; sleep 0.05; done
  fail "the box stays"
}
# Ends a program that stands there with its window alone.
end_the_window() {
  window=$(window_of_width 615)
  xdotool windowfocus --sync "$window" key ctrl+q
  ends_well "$1"
}
# Clicks at a place of the content area.
click() { xdotool mousemove --window "$window" "$1" $(($2 + above)) click 1; }
# Pixels of a colour in a rectangle of the content area: pixels COLOUR WIDTH HEIGHT X Y
pixels() {
  import -window "$window" -crop "$2x$3+$4+$(($5 + above))" "$work/part.png"
  convert "$work/part.png" -alpha off -transparent "$1" -alpha extract -format '%[fx:round((1-mean)*w*h)]' info:
}
# Waits until there are at least so many such pixels, or none: until_there COUNT COLOUR W H X Y
until_there() { for _ in $(seq 100); do [ "$(pixels "${@:2}")" -ge "$1" ] && return; sleep 0.05; done; fail "not there: $*"; }
until_gone() { for _ in $(seq 100); do [ "$(pixels "$@")" -eq 0 ] && return; sleep 0.05; done; fail "still there: $*"; }
ends_well() {
  local status=0
  wait "$id" || status=$?
  [ "$status" -eq 0 ] || fail "status $status after $1: $(cat "$work/stderr")"
}

green='#008100'
