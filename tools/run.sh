#!/usr/bin/env bash
# Starts the program given with its arguments, on simulated displays where there is no session with
# real ones. A choice among the arguments holds.
set -euo pipefail
program=$1
shift

services=auto
case " $* " in
  *" --display-services"*) exec "$program" "$@" ;;
esac
if [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  services=simulated
  echo "There is no desktop session here, so Nocturo runs on simulated displays."
fi
exec "$program" --display-services="$services" "$@"
