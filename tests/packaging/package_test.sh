#!/usr/bin/env bash
# package_test.sh DIRECTORY: holds the package there against the rules for packages, installs it into a fresh
# root of this system's release, starts what came, removes it and looks for what it left. Needs to be root,
# and the mirror that this machine takes its packages from. Ends with 77 where it cannot.
set -euo pipefail
for deb in "$1"/nocturo_*.deb; do
  [ -e "$deb" ] || { echo "make package makes the package that is looked for"; exit 77; }
done
for tool in debootstrap unshare apt-get lintian; do
  command -v "$tool" >/dev/null || { echo "$tool is not installed"; exit 77; }
done

# In namespaces of their own, whose mounts and processes end with them.
if [ -z "${NOCTURO_TEST_WORK:-}" ]; then
  [ "$(id -u)" -eq 0 ] || { echo "only root can make a fresh root"; exit 77; }
  lintian --allow-root --fail-on error --display-info "$deb"
  work=$(mktemp -d)
  trap 'rm -rf --one-file-system "$work"' EXIT
  NOCTURO_TEST_WORK=$work unshare --mount --pid --fork --kill-child -- "$0" "$1"
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

# The fresh root takes its packages from where this machine takes them.
make_root() {
  local release mirror
  release=$(sed -n 's/^VERSION_CODENAME=//p' /etc/os-release)
  # shellcheck disable=SC2016 # apt's variables
  mirror=$(apt-get indextargets --format '$(SITE)|$(RELEASE)' "Created-By: Packages" |
    awk -F '|' -v release="$release" '$2 == release { print $1; exit }')
  debootstrap --variant=minbase --include=dbus-daemon "$release" "$root" "$mirror" >"$work/debootstrap.log" ||
    { tail "$work/debootstrap.log"; fail "no fresh root could be made"; }
  mount -t proc proc "$root/proc"
  mkdir -p "$work/archives"
}

files_outside_of_apt() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./var/cache -o -path ./var/log \
    -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) -prune -o -print | sort)
}

make_root
cp "$deb" "$root/tmp/nocturo.deb"
inside apt-get update -q >/dev/null
# First what the package needs, so that what is new afterwards is its own.
needed=$(inside apt-get install -s --no-install-recommends /tmp/nocturo.deb |
  awk '$1 == "Inst" && $2 != "nocturo" { print $2 }')
# shellcheck disable=SC2086 # one word a package
inside apt-get install -q -y --no-install-recommends $needed >"$work/apt.log" 2>&1 ||
  { tail "$work/apt.log"; fail "what the package needs cannot be installed"; }
files_outside_of_apt >"$work/before"

inside dpkg -i /tmp/nocturo.deb
[ "$(inside nocturo --version)" = "nocturo $(dpkg-deb -f "$deb" Version | sed 's/-[^-]*$//')" ]
inside nocturoctl --version
inside nocturoctl --help >/dev/null
for file in /usr/libexec/nocturo-guard /etc/xdg/autostart/org.nocturo.Nocturo.desktop \
  /usr/share/applications/org.nocturo.Nocturo.desktop /usr/share/man/man1/nocturo.1.gz \
  /usr/share/dbus-1/services/org.nocturo.Nocturo.service; do
  [ -e "$root$file" ] || fail "$file is missing"
done
# Through the service file, as the desktop would.
sed -i '/^Exec=/s/$/ --display-services=simulated/' \
  "$root/usr/share/dbus-1/services/org.nocturo.Nocturo.service"
inside env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/tmp XDG_CONFIG_HOME=/tmp XDG_STATE_HOME=/tmp dbus-run-session -- sh -ec '
  dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
    org.freedesktop.DBus.StartServiceByName string:org.nocturo.Nocturo uint32:0
  nocturoctl effects only invert
  nocturoctl status
  nocturoctl quit'

inside dpkg --purge nocturo
files_outside_of_apt >"$work/after"
diff "$work/before" "$work/after" || fail "these files are left, or gone"
echo "The package installs, starts and leaves nothing."
