#!/usr/bin/env bash
# Draws the icon's pictures again, after a change to packaging/orrel-pitchsieve.svg.
set -euo pipefail
cd "$(dirname "$(realpath "$0")")/.."
. tools/need.sh

need librsvg2-bin
for size in 16 32 64; do
  rsvg-convert -w $size -h $size packaging/orrel-pitchsieve.svg -o packaging/icons/$size.png
done
