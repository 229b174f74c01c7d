#!/usr/bin/env bash
# readme_test.sh RELEASE: does in a fresh root of that Debian what the README tells newcomers to do.
set -euo pipefail
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/fresh_root.sh"

make_root "$1"
mount -t tmpfs -o mode=755 tmpfs "$root/run" # others' directories are not used
mount -t tmpfs tmpfs "$root/dev/shm"
echo force-unsafe-io >"$root/etc/dpkg/dpkg.cfg.d/quickly" # the root does not outlive a crash
mkdir "$root/nocturo"
tar -C "$(dirname "$0")/../.." --exclude=./build --exclude=./.git -c . | tar -C "$root/nocturo" -x

inside apt-get update -q >/dev/null
inside apt-get install -q -y make git >"$work/apt.log" 2>&1 || { tail "$work/apt.log"; fail "no make"; }
# shellcheck disable=SC2016 # the inner shell's variables
inside WERROR="${WERROR:-OFF}" XDG_RUNTIME_DIR=/run dbus-run-session -- sh -ec '
  cd /nocturo
  nocturoctl=build/release/bin/nocturoctl
  make run &
  until $nocturoctl status 2>/dev/null; do
    kill -0 $!
    sleep 1
  done
  $nocturoctl effects only invert
  [ -e /run/nocturo/display-2.png ]
  $nocturoctl quit
  wait $!'
inside WERROR="${WERROR:-OFF}" make -C /nocturo test
