#!/usr/bin/env bash
# try_desktops.sh BIN: runs the programs in BIN under the Wayland compositors of Debian 13 and of testing, in
# fresh roots, and prints a table of what was seen: desktop, version, what Nocturo does there. No compositor
# has hardware there, so none of their outputs can show an effect; that is told is what is looked at.
set -euo pipefail
bin=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
set -- "$bin"
# shellcheck source-path=SCRIPTDIR source=../../tests/packaging/fresh_root.sh
. "$here/../../tests/packaging/fresh_root.sh"

programs=(nocturo nocturoctl nocturo-guard nocturo-bus-guard nocturo-profile-guard profile_probe)

# The programs, and those of their libraries that the other release has not.
bring_nocturo() {
  local program library
  mkdir -p "$root/opt/nocturo/bin" "$root/opt/nocturo/lib"
  for program in "${programs[@]}"; do
    cp "$bin/$program" "$root/opt/nocturo/bin"
    for library in $(ldd "$bin/$program" 2>/dev/null | awk '/=> \// { print $3 }'); do # none of a static one
      [ -n "$(find "$root/usr/lib" -name "${library##*/}")" ] || cp -L "$library" "$root/opt/nocturo/lib"
    done
  done
  cp "$here/look.sh" "$root/opt/nocturo"
}

# look COMPOSITOR PACKAGE: as an ordinary user, which sway wants.
look() {
  local seen
  seen=$(inside setpriv --reuid=65534 --regid=65534 --clear-groups timeout 60 \
    dbus-run-session -- /opt/nocturo/look.sh "$1" 2>"$work/look.log") || seen="failed: $(tail -n 1 "$work/look.log")"
  # shellcheck disable=SC2016 # a field of dpkg's
  printf '%-7s %-22s %s\n' "$1" "$(inside dpkg-query -W -f '${Version}' "$2")" "$seen"
}

# Everything after the mounts goes with the namespace.
for release in trixie forky; do
  root=$work/$release
  make_root "$release"
  mount --bind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/dev/shm"
  mount -t tmpfs tmpfs "$root/run"
  inside apt-get update -q >"$work/apt.log"
  inside apt-get install -q -y --no-install-recommends kwin-wayland sway labwc mutter >"$work/apt.log" 2>&1 ||
    { tail "$work/apt.log"; fail "the compositors cannot be installed"; }
  bring_nocturo
  echo "$release"
  look kwin kwin-wayland
  look sway sway
  look labwc labwc
  look mutter mutter
done
