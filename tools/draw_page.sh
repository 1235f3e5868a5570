#!/usr/bin/env bash
# draw_page.sh PAGE PICTURE: has a browser without a window draw the page.
set -euo pipefail
. "$(dirname "$(realpath "$0")")/need.sh"

need chromium fonts-dejavu-core
profile=$(mktemp -d)
trap 'rm -rf "$profile"' EXIT
flags=(--headless=new --disable-gpu --no-first-run --disable-background-networking
  --disable-component-update --disable-sync --user-data-dir="$profile" --window-size=660,720)
# The browser's own fence against hostile pages does not stand for root.
[ "$(id -u)" -ne 0 ] || flags+=(--no-sandbox)
chromium "${flags[@]}" --screenshot="$2" "file://$1" 2>/dev/null
