#!/usr/bin/env bash
# Draws test-card.png, the picture that simulated displays show: text to read, a landscape, skin
# tones, colour bars and grey ramps, which is where a wrong transfer table is seen first.
# Needs ImageMagick and the DejaVu fonts.
set -euo pipefail
cd "$(dirname "$0")"

draw=convert
if command -v magick >/dev/null; then
  draw=magick
fi

serif=DejaVu-Serif
sans=DejaVu-Sans
bold=DejaVu-Sans-Bold
mono=DejaVu-Sans-Mono

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The landscape is drawn apart, so that its round corners can be cut.
"$draw" -size 300x136 gradient:'#3f7fc4'-'#fbd9b0' \
  -fill '#fff3d6' -draw 'circle 222,64 222,46' \
  -fill '#ffffffb0' -draw 'roundrectangle 34,30 112,40 5,5' -draw 'roundrectangle 58,22 96,36 7,7' \
  -fill '#ffffff90' -draw 'roundrectangle 148,24 196,30 3,3' \
  -fill '#7f95b8' -draw 'polygon 0,92 62,54 112,92 158,64 214,96 262,72 300,90 300,136 0,136' \
  -fill '#f4f6fa' -draw 'polygon 62,54 46,64 55,63 60,67 66,62 72,66 77,65' \
  -fill '#5f8a55' -draw 'path "M 0,100 C 60,78 120,112 180,102 S 270,90 300,98 L 300,136 L 0,136 Z"' \
  -fill '#3d6b3f' -draw 'path "M 0,122 C 70,104 140,132 210,118 S 280,116 300,120 L 300,136 L 0,136 Z"' \
  -fill '#b5473c' -draw 'rectangle 92,98 112,112' -fill '#7d2f2a' -draw 'polygon 88,98 102,86 116,98' \
  -fill '#ffe9a8' -draw 'rectangle 99,103 105,112' \
  "$work/landscape.png"
"$draw" -size 300x136 xc:black -fill white -draw 'roundrectangle 0,0 299,135 8,8' "$work/mask.png"
"$draw" "$work/landscape.png" "$work/mask.png" -alpha off -compose CopyOpacity -composite \
  "$work/landscape.png"

# A ramp across 608 pixels, and the same range in 19 steps of 32 pixels.
"$draw" -size 22x608 gradient:white-black -rotate 90 -depth 8 "$work/ramp.png"

bars=()
x=16
for colour in '#ffffff' '#ffff00' '#00ffff' '#00ff00' '#ff00ff' '#ff0000' '#0000ff' '#000000'; do
  bars+=(-fill "$colour" -draw "rectangle $x,288 $((x + 75)),329")
  x=$((x + 76))
done
x=16
for step in $(seq 0 18); do
  level=$((step * 255 / 18))
  bars+=(-fill "rgb($level,$level,$level)" -draw "rectangle $x,360 $((x + 31)),383")
  x=$((x + 32))
done
x=324
for skin in '#fbe0cf' '#f0c4a4' '#dba47c' '#b97a52' '#8a5535' '#4d2d1f'; do
  bars+=(-fill "$skin" -draw "roundrectangle $x,216 $((x + 44)),273 6,6")
  x=$((x + 51))
done

"$draw" -size 640x400 xc:'#ece7de' \
  -fill '#23304d' -draw 'circle 36,36 36,18' \
  -fill '#ffd978' -draw 'circle 36,36 36,24' -fill '#23304d' -draw 'circle 41,33 41,22' \
  -font "$bold" -pointsize 27 -fill '#23304d' -annotate +64+46 'Nocturo' \
  -font "$sans" -pointsize 12 -fill '#6b6558' -gravity NorthEast -annotate +16+32 'simulated display' \
  -gravity NorthWest \
  -fill white -stroke '#cfc8ba' -draw 'roundrectangle 16,70 308,205 8,8' -stroke none \
  -font "$serif" -pointsize 17 -fill '#1a1a1a' -annotate +30+80 'A page to read at night' \
  -font "$serif" -pointsize 12 -fill '#333333' -annotate +30+108 'Black on white is bright. Turned round, it' \
  -annotate +30+126 'rests the eyes, and each letter stays sharp.' \
  -font "$sans" -pointsize 10 -fill '#6a6a6a' -annotate +30+150 'Small grey print is the first to fade when dimmed.' \
  -fill '#1a5fb4' -annotate +30+174 'a link' -fill '#c01c28' -annotate +78+174 'a warning' \
  -fill '#26762f' -annotate +146+174 'all is well' -fill '#d0d0d0' -annotate +220+174 'nearly gone' \
  -fill '#1b1f2a' -draw 'roundrectangle 16,216 308,273 8,8' \
  -font "$mono" -pointsize 12 -fill '#8fd694' -annotate +30+225 '$ nocturoctl toggle' \
  -fill '#d8dee9' -annotate +30+247 'The night has come.' \
  -fill '#3a3f4d' -annotate +190+247 'barely there' \
  "$work/landscape.png" -geometry +324+70 -composite \
  "${bars[@]}" \
  "$work/ramp.png" -geometry +16+336 -composite \
  -alpha off -depth 8 -strip -define png:exclude-chunks=date,time,gAMA,cHRM \
  -define png:compression-level=9 PNG24:test-card.png
