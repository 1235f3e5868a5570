#!/usr/bin/env bash
# The Debian package: what stands in it is in order, it installs, upgrades and goes without a trace,
# and the installed programs work through their links.
# usage: package_test.sh BUILD-FOLDER
set -euo pipefail
build=$(realpath "$1")
tests=$(dirname "$(realpath "$0")")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "FAILED: $*"; exit 1; }

pack() { (cd "$build" && cpack -B "$work/$1" -D CPACK_PACKAGE_VERSION="$1") >"$work/log" || fail "$(cat "$work/log")"; }
pack 1.1
pack 1.2
package=("$work"/1.1/*.deb)
newer=("$work"/1.2/*.deb)

lintian --allow-root --fail-on error "${package[0]}"
needs=$(dpkg-deb -f "${package[0]}" Depends | tr ',' '\n' | awk '{ print $1 }' | sort | tr '\n' ' ')
[ "$needs" = "libc6 libgcc-s1 libqt6core6 libqt6dbus6 libqt6gui6 libqt6widgets6 libstdc++6 " ] || fail "it depends on $needs"

system=$work/system
mkdir -p "$system/var/lib/dpkg/updates" "$system/var/lib/dpkg/info"
touch "$system/var/lib/dpkg/status"
dpkg_there() { fakeroot dpkg --root="$system" --force-depends "$@" >"$work/log" 2>&1 || fail "dpkg $*: $(cat "$work/log")"; }
dpkg_there --install "${package[0]}"
share=$system/usr/share
desktop-file-validate --no-hints "$share"/applications/*.desktop
appstreamcli validate --no-net "$share"/metainfo/*.xml >"$work/log" || fail "$(cat "$work/log")"
for page in "$share"/man/man1/*; do
  warnings=$(LC_ALL=C.UTF-8 man --warnings -l "$page" 2>&1 >/dev/null)
  [ -z "$warnings" ] || fail "$warnings"
done
dpkg_there --install "${newer[0]}"
"$system/usr/bin/orrel-check-library" "$system/usr/lib/orrel-pitchsieve/Resources/Orrel Scales.csv" >"$work/log" ||
  fail "$(cat "$work/log")"
"$tests/x_server_test.sh" "$system/usr/bin/orrel-pitchsieve"
dpkg_there --purge orrel-pitchsieve
[ -z "$(find "$system" -path '*orrel*')" ] || fail "left behind: $(find "$system" -path '*orrel*')"
echo "Installed, upgraded, used and removed."
