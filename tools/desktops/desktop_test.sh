#!/usr/bin/env bash
# desktop_test.sh BUILD [RELEASE...]: runs what was built in BUILD under the Wayland compositors of Debian 13 and
# of testing, in fresh roots, and prints a table of what was seen: compositor, version, what Nocturo does there.
# Fails where that is not what it should be. No compositor has hardware there, so none of their outputs can show
# an effect; that this is told is what is looked at.
set -euo pipefail
build=$(realpath "$1")
here=$(realpath "$(dirname "$0")")
shift
releases=("$@")
[ $# -gt 0 ] || releases=(trixie forky)
set -- "$build" "$@"
# shellcheck source-path=SCRIPTDIR source=../../tests/packaging/fresh_root.sh
. "$here/../../tests/packaging/fresh_root.sh"

# Once for all roots, so that all get the same.
DESTDIR=$work/built cmake --install "$build" --prefix /opt/nocturo >"$work/install.log"
cp "$build"/bin/{profile_probe,press_keys} "$here/look.sh" "$work/built/opt/nocturo/bin"

# What was built, and those of its libraries that the other release has not. What comes of Qt is the root's own.
bring_nocturo() {
  local program library
  cp -a "$work/built/." "$root"
  for program in bin/nocturo bin/nocturoctl libexec/nocturo-bus-guard libexec/nocturo-profile-guard; do
    for library in $(ldd "$root/opt/nocturo/$program" | awk '/=> \// { print $3 }'); do
      [ -n "$(find "$root/usr/lib" -name "${library##*/}")" ] || cp -L "$library" "$root/opt/nocturo/lib"
    done
  done
}

failed=

# look COMPOSITOR PACKAGE LINE...: as an ordinary user, which sway wants. What is seen is a line for each LINE, a
# regular expression.
look() {
  local compositor=$1 version line seen=()
  # shellcheck disable=SC2016 # a field of dpkg's
  version=$(inside dpkg-query -W -f '${Version}' "$2")
  mapfile -t seen < <(inside setpriv --reuid=65534 --regid=65534 --clear-groups timeout 150 \
    /opt/nocturo/bin/look.sh "$compositor" 2>"$work/look.log")
  shift 2
  for line in "${seen[@]}"; do
    printf '%-7s %-22s %s\n' "$compositor" "$version" "$line"
    if ! [[ $line =~ ^${1-}$ ]]; then
      echo "        expected: ${1-nothing}"
      tail -n 5 "$work/look.log"
      failed=yes
    fi
    shift || true
  done
  if [ $# -gt 0 ]; then
    echo "        expected as well: $*"
    tail -n 5 "$work/look.log"
    failed=yes
  fi
}

without_ramp='wlr: \[x\] 1 HEADLESS-1 [0-9]+ 256 no main no ramp, or another program has it; windows shown, ends with 0'
hot_key='hot key: Meta\+Ctrl\+F5 granted, switches; with another one set it stays Meta\+Ctrl\+F5, switches'
declare -A lending=( # only to who calibrates what can be calibrated
  [trixie]='lends monitors: .*ServiceUnknown.*'
  [forky]='lends monitors: .*Device cannot be calibrated.*'
)

# Everything after the mounts goes with the namespace.
for release in "${releases[@]}"; do
  root=$work/$release
  make_root "$release"
  mount --bind /dev "$root/dev"
  mount -t tmpfs tmpfs "$root/dev/shm"
  mount -t tmpfs tmpfs "$root/run"
  # A mirror of testing may stand still for longer than its lists are meant to hold.
  inside apt-get update -q -o Acquire::Check-Valid-Until=false >"$work/apt.log"
  inside apt-get install -q -y --no-install-recommends kwin-wayland sway labwc mutter libglib2.0-bin qt6-wayland \
    xdg-desktop-portal xdg-desktop-portal-kde >"$work/apt.log" 2>&1 ||
    { tail "$work/apt.log"; fail "the compositors cannot be installed"; }
  bring_nocturo
  echo "$release"
  look kwin kwin-wayland \
    'kde: \[x\] 1 Virtual-0 [0-9]+ 256 no main cannot be given a color profile; windows shown, ends with 0' \
    "$hot_key" \
    'profiles: made.icc: applied; junk.icc: refused .*; missing.icc: refused .*; home-kwin: refused .*; the output has ""'
  look sway sway "$without_ramp"
  look labwc labwc "$without_ramp"
  look mutter mutter 'gnome: ; windows shown, ends with 0' "${lending[$release]}"
done
[ -z "$failed" ]
