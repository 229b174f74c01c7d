#!/usr/bin/env bash
# Draws the pictures of the README anew, with simulated displays. Needs ImageMagick besides what
# tools/deps.sh installs, and a release build.
set -euo pipefail
cd "$(dirname "$0")/.."
bin=$PWD/build/release/bin
images=$PWD/docs/images

if [ "${1:-}" != inside ]; then
  home=$(mktemp -d)
  trap 'rm -rf "$home"' EXIT
  XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home dbus-run-session -- "$0" inside
  exit
fi

picture=$XDG_RUNTIME_DIR/nocturo/display-1.png
"$bin/nocturo" --display-services=simulated:1 &
nocturo=$!
until "$bin/nocturoctl" off 2>/dev/null; do
  kill -0 "$nocturo"
done
cp "$picture" "$XDG_RUNTIME_DIR/plain.png"
"$bin/nocturoctl" on

# show NAME EFFECT... - keeps what the display shows with these effects.
show() {
  local name=$1
  shift
  "$bin/nocturoctl" effects only "$@"
  cp "$picture" "$XDG_RUNTIME_DIR/$name.png"
}
show inverted invert
"$bin/nocturoctl" set NDDimEffectLevel -0.5
show dimmed dim
"$bin/nocturoctl" set NDColorFilterEffectHue 25
"$bin/nocturoctl" set NDColorFilterEffectVividness 0.8
show filtered color-filter
"$bin/nocturoctl" quit
wait "$nocturo"

cd "$XDG_RUNTIME_DIR"
montage plain.png inverted.png dimmed.png filtered.png -tile 2x2 -geometry +6+6 \
  -background '#808080' -depth 8 "$images/effects.png"
