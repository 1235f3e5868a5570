#!/usr/bin/env bash
# The built programs where the system has little to give: standard files that are closed, and memory
# and threads that it refuses, by a limit and at any call. Whatever it is, the program opens or says
# why it does not, and it ends with a status.
# usage: last_resorts_test.sh PROGRAM CHECKER REFUSING-MEMORY REFUSING-THREADS
set -euo pipefail
program=$(realpath "$1")
checker=$(realpath "$2")
refusing_memory=$(realpath "$3")
refusing_threads=$(realpath "$4")
. "$(dirname "$0")/on_x.sh"

# Standard files that are closed: a failure is told all the same.
start_on_a_broken_library <&- >&- 2>&-
read_box
for file in 0 1 2; do
  [ "$(readlink "/proc/$id/fd/$file")" = /dev/null ] || fail "file $file is $(readlink "/proc/$id/fd/$file")"
done
end_the_window "closed standard files"
said=$("$checker" /proc/self/fd/0 2>&1 <&-) || true
[[ $said != *"No such file"* ]] || fail "the checker has no standard input"

if grep -q __asan_init "$program"; then
  echo "Opened without standard files. The sanitizer needs memory of its own: it was not refused."
  exit
fi

# Does a start, and says how it went: "window", or the status with all that the program said.
outcome() {
  local status=0
  "$@" >"$work/said" 2>&1 &
  id=$!
  started+=("$id")
  for _ in $(seq 200); do
    if ! kill -0 "$id" 2>/dev/null; then
      wait "$id" || status=$?
      echo "$status $(cat "$work/said")"
      return
    fi
    if xdotool search --onlyvisible --pid "$id" --name '^Orrel Pitchsieve$' >/dev/null 2>&1; then
      kill "$id"
      echo window
      return
    fi
    sleep 0.02
  done
  kill "$id"
  echo hangs
}
refused='1 No window can be opened: the system has no memory left.'
opened_or_refused() { [ "$1" = window ] || [ "$1" = "$refused" ] || fail "$2: $1"; }

# A limit of the address space. Where not even the libraries fit it is the system's loader that ends
# the program.
limited() { ulimit -v "$1" && exec "$program"; }
for limit in $(seq 60000 3500 200000); do
  seen=$(outcome limited "$limit")
  case $seen in 127*'shared librar'*) continue ;; esac
  opened_or_refused "$seen" "with $limit KiB"
  [ "$seen" = window ] || last_refusal=$limit
done
[ -n "${last_refusal:-}" ] || fail "no limit was met"
[ "$seen" = window ] || fail "200 MB do not do"

# Any request for memory of a start.
refusing_after() { REFUSE_AFTER=$1 LD_PRELOAD=$refusing_memory exec "$program"; }
for requests in 0 1 2 3 5 10 20 50 100 300 500 1000 1500 2000 2500 3000 4000 5000 6000; do
  opened_or_refused "$(outcome refusing_after $requests)" "after $requests requests"
done

# The checker with a library that needs more than there is.
seq -f 'Bank,Scale %.0f,TRUE,FALSE,TRUE,FALSE,TRUE,TRUE,FALSE,TRUE,FALSE,TRUE,FALSE,TRUE' 200000 >"$work/large.csv"
check_limited() { ulimit -v "$1" && "$checker" "$work/large.csv" 2>&1; }
for limit in 8000 10000 12000; do
  status=0
  said=$(check_limited $limit) || status=$?
  [ "$status $said" = "3 orrel-check-library: the system has no memory left" ] || fail "with $limit KiB the checker ends with $status: $said"
done

# Any thread of a run: some start late, as the ones that paint a root menu's gradient.
no_thread='the system has no memory left for a thread, or allows none.'
for threads in 0 1 2 3 4 5 6; do
  THREADS=$threads LD_PRELOAD=$refusing_threads "$program" 2>"$work/stderr" &
  id=$!
  started+=("$id")
  until=$((SECONDS + 20))
  while kill -0 "$id" 2>/dev/null && [ $SECONDS -lt $until ]; do
    window=$(xdotool search --onlyvisible --pid "$id" --name '^Orrel Pitchsieve$' 2>/dev/null) || continue
    # The root menu is opened and used, as far as that goes, and the program is told to quit.
    timeout 5 xdotool windowfocus --sync "$window" mousemove --window "$window" 70 80 click 1 sleep 0.2 \
      key Down key Return sleep 0.2 key ctrl+q sleep 0.2 >/dev/null 2>&1 || true
  done
  ! kill -0 "$id" 2>/dev/null || fail "hangs with $threads threads"
  status=0
  wait "$id" || status=$?
  case "$status $(cat "$work/stderr")" in
    "1 No window can be opened: $no_thread") ;;
    "1 The program cannot go on: $no_thread") late=$threads ;;
    "0 ") enough=$threads ;;
    *) fail "with $threads threads: status $status, $(cat "$work/stderr")" ;;
  esac
done
[ -n "${late:-}" ] && [ -n "${enough:-}" ] || fail "no thread was refused late, or there were never enough"
echo "Opened without standard files; said what was wanting, up to $last_refusal KiB and at any request."
