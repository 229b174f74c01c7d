#!/usr/bin/env bash
# Starts the program given with its arguments, on simulated displays where there are no real ones
# that it could change. A choice among the arguments holds.
set -euo pipefail
program=$1
shift

services=auto
case " $* " in
  *" --display-services"*) exec "$program" "$@" ;;
esac
if [ -z "${DISPLAY:-}" ]; then
  services=simulated
  echo "There is no X display here, so Nocturo runs on simulated displays."
elif [ "${XDG_SESSION_TYPE:-}" = wayland ]; then
  services=simulated
  echo "Nocturo cannot change the displays of a Wayland session yet, so it runs on simulated displays."
fi
exec "$program" --display-services="$services" "$@"
