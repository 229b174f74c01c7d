#!/bin/bash
# look.sh COMPOSITOR: runs in a root of another release, inside of a session bus of its own, with
# Nocturo in /opt/nocturo. Starts the compositor without hardware and says in one line what Nocturo does there.
set -u
compositor=$1
export PATH=/opt/nocturo/bin:$PATH LD_LIBRARY_PATH=/opt/nocturo/lib
export HOME=/tmp/home-$compositor XDG_RUNTIME_DIR=/tmp/run-$compositor XDG_CURRENT_DESKTOP=$compositor
rm -rf "$HOME" "$XDG_RUNTIME_DIR"
mkdir -p "$HOME/.config/nocturo" "$XDG_RUNTIME_DIR"
chmod 700 "$XDG_RUNTIME_DIR"
# Nobody is there to be asked which effect it is to be.
echo '<plist version="1.0"><dict><key>NDGroupEffect</key><array><string>NDInvertEffect</string></array></dict></plist>' \
  >"$HOME/.config/nocturo/settings.plist"

# wait_for COMMAND...: until it succeeds, 10 seconds at most.
wait_for() {
  local _
  for _ in {1..100}; do
    "$@" && return
    sleep 0.1
  done
  return 1
}

# shellcheck disable=SC2317 # by wait_for
socket() {
  local found
  found=$(find "$XDG_RUNTIME_DIR" -maxdepth 1 -name 'wayland-*' -not -name '*.lock' | head -1)
  [ -n "$found" ] && export WAYLAND_DISPLAY=${found##*/}
}

case $compositor in
  kwin) kwin_wayland --virtual --no-lockscreen --no-global-shortcuts --socket wayland-0 >"$HOME/log" 2>&1 & ;;
  sway)
    echo 'xwayland disable' >"$HOME/config"
    WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 sway --config "$HOME/config" >"$HOME/log" 2>&1 &
    ;;
  labwc) WLR_BACKENDS=headless WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 labwc >"$HOME/log" 2>&1 & ;;
  mutter) mutter --headless --virtual-monitor 800x600 >"$HOME/log" 2>&1 & ;;
esac
running=$!
if ! wait_for socket; then
  echo "it did not start: $(tail -n 1 "$HOME/log")"
  exit 1
fi
nocturo >"$HOME/nocturo" 2>&1 &
nocturo=$!
# shellcheck disable=SC2317 # by wait_for
answers() { nocturoctl status --json >"$HOME/status" 2>/dev/null || ! kill -0 "$nocturo" 2>/dev/null; }
wait_for answers
if kill -0 "$nocturo" 2>/dev/null; then
  tr -d '\n' <"$HOME/status" | sed -n 's/.*"displayServices": *"\([^"]*\)".*/display services \1;/p' | tr '\n' ' '
  nocturoctl screens | tail -n +2 | tr -s ' ' | tr '\n' ';'
  nocturoctl off && nocturoctl quit
  wait "$nocturo"
  echo " ends with $?"
else
  wait "$nocturo"
  echo "ends with $?: $(grep -v '^$' "$HOME/nocturo" | tail -n 1)"
fi
if [ "$compositor" = kwin ]; then
  cd "$HOME" || exit 1
  head -c 5000 /dev/urandom >junk.icc
  mkfifo pipe.icc
  profile_probe "$HOME/junk.icc" "$HOME/missing.icc" "$HOME" | sed 's/^/  profiles: /'
fi
kill "$running"
wait "$running" 2>/dev/null
exit 0
