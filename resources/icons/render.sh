#!/usr/bin/env bash
# Draws the icon at the sizes that desktops ask for most, so that nobody needs to draw SVG.
# Needs rsvg-convert.
set -euo pipefail
cd "$(dirname "$0")/hicolor"

name=org.nocturo.Nocturo
for size in 16 22 24 32 48 64 128 256; do
  mkdir -p "${size}x$size/apps"
  rsvg-convert --width "$size" --height "$size" "scalable/apps/$name.svg" --output "${size}x$size/apps/$name.png"
done
