#!/usr/bin/env bash
# draw_page.sh PAGE PICTURE: has a browser without a window draw the page. Its status is 1 when there is
# no picture.
set -euo pipefail
. "$(dirname "$(realpath "$0")")/need.sh"

need chromium fonts-dejavu-core
profile=$(mktemp -d)
trap 'rm -rf "$profile"' EXIT
flags=(--headless=new --disable-gpu --no-first-run --disable-background-networking
  --disable-component-update --disable-sync --user-data-dir="$profile" --window-size=660,720)
# The browser's own fence against hostile pages does not stand for root.
[ "$(id -u)" -ne 0 ] || flags+=(--no-sandbox)
# As an address has them.
page=${1//\%/%25} page=${page//\#/%23} page=${page//\?/%3F}
rm -f "$2"
chromium "${flags[@]}" --screenshot="$2" "file://$page" 2>"$profile/told" || true
[ -s "$2" ] && exit
echo "The browser has drawn no picture: $(tail -n1 "$profile/told")" >&2
exit 1
