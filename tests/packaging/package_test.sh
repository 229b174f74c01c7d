#!/usr/bin/env bash
# package_test.sh DIRECTORY: holds the package there against the rules for packages, installs it into a fresh
# root of this system's release, starts what came, removes it and looks for what it left.
set -euo pipefail
for deb in "$1"/nocturo_*.deb; do
  [ -e "$deb" ] || { echo "make package makes the package that is looked for"; exit 77; }
done
# shellcheck source-path=SCRIPTDIR
. "$(dirname "$0")/fresh_root.sh"

files_outside_of_apt() {
  (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./var/cache -o -path ./var/log \
    -o -path ./var/lib/apt -o -path ./var/lib/dpkg \) -prune -o -print | sort)
}

lintian --allow-root --fail-on error --display-info "$deb"
make_root "$(this_release)"
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
