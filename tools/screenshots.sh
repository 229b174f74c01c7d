#!/usr/bin/env bash
# Takes the pictures of the windows anew on an X server of its own: those of the README and the user
# guide into docs/images, and with a directory as argument every look that has to be looked at,
# right-to-left, with long texts, at 200 %, in other languages and on small screens, into that.
set -euo pipefail
cd "$(dirname "$0")/.."
looks=${1:-}
program=$PWD/build/release/bin/window_pictures
home=$(mktemp -d)
server=
end() {
  [ -z "$server" ] || kill "$server"
  rm -rf "$home"
}
trap end EXIT

# That of the tests, with one display that is large enough, or smaller.
sed 's/Modes .*/Modes "2048x1536" "1280x720" "1024x600"/; s/Virtual .*/Virtual 2048 1536/
  /Modeline/a Modeline "1280x720" 74.5 1280 1344 1472 1664 720 723 728 748
  /Modeline/a Modeline "1024x600" 49 1024 1072 1168 1312 600 603 613 624' tests/rig/xorg.conf >"$home/xorg.conf"

xorg=/usr/lib/xorg/Xorg
[ -x "$xorg" ] || xorg=Xorg
mkfifo "$home/number"
DBUS_SYSTEM_BUS_ADDRESS=unix:path=$home/no-bus "$xorg" ":$((RANDOM % 20000 + 1000))" -displayfd 9 -noreset \
  -nolisten tcp -novtswitch -sharevts -config "$home/xorg.conf" -configdir "$home" \
  -logfile "$home/xorg.log" 9>"$home/number" 2>/dev/null &
server=$!
read -r number <"$home/number"
export DISPLAY=":$number" QT_QPA_PLATFORM=xcb XDG_RUNTIME_DIR=$home XDG_CONFIG_HOME=$home HOME=$home
export QT_QPA_PLATFORMTHEME=generic TZ=Europe/Berlin
xsetroot -solid '#6a7c8a'

# take SCALE WINDOW FILE LOOK...
take() {
  QT_SCALE_FACTOR=$1 "$program" "${@:2}"
}

if [ -n "$looks" ]; then
  mkdir -p "$looks"
  for window in preferences switching schedule rules curves about keep no-effect save screens status-menu; do
    take 1 "$window" "$looks/$window.png"
    take 1 "$window" "$looks/$window-dark.png" dark
    take 2 "$window" "$looks/$window-200.png"
    take 1 "$window" "$looks/$window-rtl.png" rtl
    take 1 "$window" "$looks/$window-long.png" long
    for language in de ja; do
      LANGUAGE=$language take 1 "$window" "$looks/$window-$language.png"
    done
  done
  for window in preferences switching schedule rules; do
    take 1 "$window" "$looks/$window-tall.png" tall
    xrandr -s 1024x600
    take 1 "$window" "$looks/$window-1024x600.png"
    xrandr -s 1280x720
    take 1.5 "$window" "$looks/$window-1280x720.png"
    xrandr -s 2048x1536
    for language in en de es fr ja pt_BR zh_CN; do
      LANGUAGE=$language take 1.5 "$window" "$looks/$window-low-$language.png" low
    done
  done
else
  for window in preferences switching schedule rules about keep status-menu; do
    take 1 "$window" "docs/images/$window.png"
  done
  take 1 preferences docs/images/preferences-dark.png dark
fi
