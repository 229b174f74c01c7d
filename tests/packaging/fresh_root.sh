# Sourced by tests that need a fresh Debian, as root: afterwards $root is the place for one and $work that
# for files beside it. The test runs in namespaces of its own, whose mounts and processes end with it.
# Ends with 77 where it cannot.
# shellcheck shell=bash

for tool in debootstrap unshare apt-get; do
  command -v "$tool" >/dev/null || { echo "$tool is not installed"; exit 77; }
done
[ "$(id -u)" -eq 0 ] || { echo "only root can make a fresh root"; exit 77; }

if [ -z "${NOCTURO_TEST_WORK:-}" ]; then
  work=$(mktemp -d)
  trap 'rm -rf --one-file-system "$work"' EXIT
  NOCTURO_TEST_WORK=$work unshare --mount --pid --fork --kill-child -- "$0" "$@"
  exit
fi
work=$NOCTURO_TEST_WORK
root=$work/root

fail() {
  echo "$*" >&2
  exit 1
}

inside() {
  chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LC_ALL=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive "$@"
}

this_release() {
  sed -n 's/^VERSION_CODENAME=//p' /etc/os-release
}

# make_root RELEASE: takes its packages from where this machine takes those of its own release.
make_root() {
  local mirror
  # shellcheck disable=SC2016 # apt's variables
  mirror=$(apt-get indextargets --format '$(SITE)|$(RELEASE)' "Created-By: Packages" |
    awk -F '|' -v release="$(this_release)" '$2 == release { print $1; exit }')
  local scripts=/usr/share/debootstrap/scripts
  [ -e "$scripts/$1" ] || set -- "$1" "$scripts/sid" # a release that this debootstrap does not know
  debootstrap --variant=minbase --include=dbus-daemon "$1" "$root" "$mirror" "${@:2}" >"$work/debootstrap.log" ||
    { tail "$work/debootstrap.log"; fail "no fresh root could be made"; }
  mount --bind "$root" "$root" # programs in it may make namespaces of their own then
  mount -t proc proc "$root/proc"
}
