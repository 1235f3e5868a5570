#!/usr/bin/env bash
# The built program as a screen reader meets it: on the accessibility bus, under a window manager.
# usage: accessibility_test.sh PROGRAM
set -euo pipefail
program=$(realpath "$1")
tests=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
started=()
trap 'for id in "${started[@]}"; do kill "$id" 2>/dev/null || true; done; rm -rf "$work"' EXIT

unset WAYLAND_DISPLAY QT_QPA_PLATFORM
export XDG_RUNTIME_DIR=$work HOME=$work LC_ALL=C.UTF-8 QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
exec 3<>"$work/display"
Xvfb -displayfd 3 -screen 0 1000x900x24 >"$work/xvfb.log" 2>&1 &
started+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.05; done
export DISPLAY=:$(tr -d '\n' <"$work/display")
openbox >"$work/openbox.log" 2>&1 &
started+=($!)
# walk PROGRAM CLIENT: the client goes through the window and quits, and the program ends with status 0.
walk() {
  timeout 90 dbus-run-session -- bash -c '
    /usr/libexec/at-spi-bus-launcher --launch-immediately >&2 &
    bus=$!
    "$0" &
    trap "kill $! $bus" EXIT
    /usr/bin/python3 "$1" && wait $!' "$1" "$tests/$2" 2>"$work/log" || { cat "$work/log"; echo "FAILED"; exit 1; }
}
walk "$program" accessibility_client.py
mkdir -p "$work/bin/Resources"
cp "$program" "$work/bin/program"
printf 'a\nb\nBank,All%s\nshort' "$(printf ',TRUE%.0s' {1..12})" >"$work/bin/Resources/Orrel Scales.csv"
walk "$work/bin/program" accessibility_failures.py
