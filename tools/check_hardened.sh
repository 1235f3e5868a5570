#!/usr/bin/env bash
# Looks into built programs for what makes a fault in their memory hard to put to use.
# usage: check_hardened.sh PROGRAM...
set -euo pipefail
status=0
for program in "$@"; do
  has() {
    grep -qE "$3" <<<"$(readelf -W "$1" "$program")" || { echo "$program: not $2"; status=1; }
  }
  has --file-header "position-independent" 'Type: +DYN'
  has --program-headers "read-only where the loader has written" ' GNU_RELRO '
  has --dynamic "bound as a whole before it runs" 'FLAGS.* (BIND_NOW|NOW)'
  has --program-headers "without code on the stack" ' GNU_STACK .* RW '
  has --dyn-syms "guarding its stack" ' __stack_chk_fail'
done
exit $status
