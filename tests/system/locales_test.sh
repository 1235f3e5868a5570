#!/usr/bin/env bash
# The same clicks have the same effect where the system writes from the right, has a comma in numbers,
# or folds case in a way of its own.
# usage: locales_test.sh PROGRAM
set -euo pipefail
LOCPATH=$(mktemp -d)
export LOCPATH
trap 'rm -rf "$LOCPATH"' EXIT
for language in ar_EG de_DE tr_TR; do
  localedef -i $language -f UTF-8 "$LOCPATH/$language.UTF-8"
  "$(dirname "$(realpath "$0")")/x_server_test.sh" "$1" $language.UTF-8
done
