#!/usr/bin/env bash
# package_test.sh DIRECTORY: holds the packages there against the rules for packages and installs them into a
# fresh root of this system's release, first without windows. Starts what came, removes it and looks for what
# it left.
set -euo pipefail
for deb in "$1"/nocturo_*.deb; do
  windows=$1/nocturo-desktop_${deb##*/nocturo_}
  if [ ! -e "$deb" ] || [ ! -e "$windows" ]; then
    echo "make package makes the packages that are looked for"
    exit 77
  fi
done
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/fresh_root.sh"

files_outside_of_apt() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./var/cache -o -path ./var/log \
    -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) -prune -o -print | sort)
}

# What the packages need first, so that what is new afterwards is their own.
install() {
  local needed
  needed=$(inside apt-get install -s --no-install-recommends "$@" |
    awk '$1 == "Inst" && $2 !~ /^nocturo/ { print $2 }')
  # shellcheck disable=SC2086 # one word a package
  inside apt-get install -q -y --no-install-recommends $needed >"$work/apt.log" 2>&1 ||
    { tail "$work/apt.log"; fail "what the packages need cannot be installed"; }
  files_outside_of_apt >"$work/before"
  inside dpkg -i "$@"
}

remove() {
  inside dpkg --purge "$@"
  files_outside_of_apt >"$work/after"
  diff "$work/before" "$work/after" || fail "these files are left, or gone"
}

# Started through the service file, as the desktop would.
in_session() {
  sed -i '/^Exec=/s/$/ --display-services=simulated/' \
    "$root/usr/share/dbus-1/services/org.nocturo.Nocturo.service"
  inside env QT_QPA_PLATFORM=offscreen XDG_RUNTIME_DIR=/tmp XDG_CONFIG_HOME=/tmp XDG_STATE_HOME=/tmp XDG_CACHE_HOME=/tmp \
    dbus-run-session -- sh -ec "
      dbus-send --session --print-reply --dest=org.freedesktop.DBus / \
        org.freedesktop.DBus.StartServiceByName string:org.nocturo.Nocturo uint32:0
      nocturoctl effects only invert
      nocturoctl status
      $1
      nocturoctl quit" 2>&1
}

files_are_there() {
  local file
  for file in "$@"; do
    [ -e "$root$file" ] || fail "$file is missing"
  done
}

lintian --allow-root --fail-on error --display-info "$deb" "$windows"
make_root "$(this_release)"
cp "$deb" "$root/tmp/nocturo.deb"
cp "$windows" "$root/tmp/nocturo-desktop.deb"
inside apt-get update -q >/dev/null

install /tmp/nocturo.deb
[ -z "$(find "$root/usr/lib" -name 'libQt*')" ] || fail "Qt is needed without windows"
[ "$(inside nocturo --version)" = "nocturo $(dpkg-deb -f "$deb" Version | sed 's/-[^-]*$//')" ]
inside nocturoctl --version
inside nocturoctl --help >/dev/null
files_are_there /usr/libexec/nocturo-guard /usr/libexec/nocturo-bus-guard \
  /usr/libexec/nocturo-profile-guard /etc/xdg/autostart/org.nocturo.Nocturo.desktop \
  /usr/share/man/man1/nocturo.1.gz /usr/share/dbus-1/services/org.nocturo.Nocturo.service
said=$(in_session '! nocturoctl preferences')
[[ $said == *"package nocturo-desktop"* ]] || fail "nothing tells what windows come with: $said"
remove nocturo

install /tmp/nocturo.deb /tmp/nocturo-desktop.deb
files_are_there /usr/share/applications/org.nocturo.Nocturo.desktop /usr/share/mime/packages/org.nocturo.Nocturo.xml
in_session 'nocturoctl preferences'
remove nocturo-desktop nocturo
echo "The packages install, start and leave nothing."
