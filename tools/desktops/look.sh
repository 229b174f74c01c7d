#!/bin/bash
# look.sh COMPOSITOR: runs in a root of another release, with Nocturo in /opt/nocturo. Starts the compositor
# without hardware in a session of its own and says in a few lines what Nocturo does there.
set -u
compositor=$1
if [ $# -eq 1 ]; then
  export HOME=/tmp/home-$compositor XDG_RUNTIME_DIR=/tmp/run-$compositor WAYLAND_DISPLAY=wayland-0
  export PATH=/opt/nocturo/bin:$PATH # a portal asks whether there is what a desktop entry names
  export XDG_CURRENT_DESKTOP=$compositor XDG_DATA_DIRS=/opt/nocturo/share:/usr/share QT_QPA_PLATFORM=wayland
  [ "$compositor" != kwin ] || XDG_CURRENT_DESKTOP=KDE # what its portal goes by
  rm -rf "$HOME" "$XDG_RUNTIME_DIR"
  mkdir -p "$HOME/.config/nocturo" "$XDG_RUNTIME_DIR"
  chmod 700 "$XDG_RUNTIME_DIR"
  QT_QUICK_BACKEND=software exec dbus-run-session -- "$0" "$1" inside
fi
# Nobody is there to be asked which effect it is to be.
echo '<plist version="1.0"><dict><key>NDGroupEffect</key><array><string>NDInvertEffect</string></array></dict></plist>' \
  >"$HOME/.config/nocturo/settings.plist"
cd "$HOME" || exit 1

# wait_for COMMAND...: until it succeeds, half a minute at most.
wait_for() {
  local _
  for _ in {1..300}; do
    "$@" && return
    sleep 0.1
  done
  return 1
}

# start PROGRAM...: without what clients of the compositor are told.
start() {
  env -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM -u XDG_CURRENT_DESKTOP -u QT_QUICK_BACKEND "$@" >log 2>&1 &
}
case $compositor in
  kwin) KWIN_WAYLAND_NO_PERMISSION_CHECKS=1 start kwin_wayland --virtual --no-lockscreen --socket wayland-0 ;;
  mutter) start mutter --headless --no-x11 --virtual-monitor 800x600 ;;
  *)
    echo 'xwayland disable' >config
    options=()
    [ "$compositor" = labwc ] || options=(--config config)
    WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 start "$compositor" "${options[@]}"
    ;;
esac
running=$!
# shellcheck disable=SC2317 # by wait_for
socket() {
  local found
  found=$(find "$XDG_RUNTIME_DIR" -maxdepth 1 -name 'wayland-*' -not -name '*.lock' | head -1)
  [ -n "$found" ] && WAYLAND_DISPLAY=${found##*/}
}
if ! wait_for socket; then
  echo "it did not start: $(tail -n 1 log)"
  exit 1
fi

export LD_LIBRARY_PATH=/opt/nocturo/lib
nocturo >said 2>&1 &
nocturo=$!
# shellcheck disable=SC2317 # by wait_for
answers() { nocturoctl status --json >told 2>/dev/null || ! kill -0 "$nocturo" 2>/dev/null; }
wait_for answers
if ! kill -0 "$nocturo" 2>/dev/null; then
  wait "$nocturo"
  echo "ends with $?: $(grep -v '^$' said | tail -n 1)"
  exit 1
fi

# shellcheck disable=SC2317 # by wait_for
granted() {
  nocturoctl hotkey | sed -n 's/^The desktop has it as \([^ ;]*\);.*/\1/p' >granted
  [ -s granted ] || { press_keys Return; false; } # a dialog may wait for that
}
# shellcheck disable=SC2317 # by wait_for
is_on() { [[ $(nocturoctl status --json) == *\"active\":$1* ]]; }
# press STATE: the key that was granted first, after which the effect is on or not.
press() { press_keys Control+Super+F5 && wait_for is_on "$1" && echo switches || echo "does not switch"; }

hot_key() {
  local first switches
  nocturoctl hotkey set ctrl+super+F5 >/dev/null
  nocturoctl hotkey enable >/dev/null
  wait_for granted
  first=$(cat granted) switches=$(press false)
  nocturoctl hotkey set ctrl+super+F6 >/dev/null
  wait_for granted
  echo "hot key: $first granted, $switches; with another one set it stays $(cat granted), $(press true)"
}

[ "$compositor" != kwin ] || keys=$(hot_key)
seen=$(tr -d '\n' <told | sed -n 's/.*"displayServices": *"\([^"]*\)".*/\1/p')
screens=$(nocturoctl screens | tail -n +2 | sed 's/^ *//' | tr -s ' ' | tr -d '\n')
nocturoctl preferences && windows="windows shown"
nocturoctl off && nocturoctl quit
wait "$nocturo"
echo "$seen: $screens; ${windows:-no windows}, ends with $?"
case $compositor in
  kwin)
    echo "$keys"
    head -c 5000 /dev/urandom >junk.icc
    echo "profiles: $(profile_probe "$HOME/junk.icc" "$HOME/missing.icc" "$HOME")"
    ;;
  mutter)
    echo "lends monitors: $(gdbus call --session -d org.gnome.Mutter.ColorManager \
      -o /org/gnome/Mutter/ColorManager -m org.gnome.Mutter.ColorManager.CalibrateMonitor Meta-0 2>&1 |
      tr '\n' ' ')"
    ;;
esac
kill "$running"
wait "$running" 2>/dev/null
exit 0
