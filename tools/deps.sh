#!/usr/bin/env bash
# deps.sh GROUP...: installs what the groups need on Debian and its relatives, or says what is missing
# elsewhere. The groups are named after what one wants to do: run test lint fuzz bench package
# screenshots. Quick and silent on the network when nothing is missing.
set -euo pipefail

# Group, package, what for.
packages=$(cat <<'TABLE'
run          g++                       compiler
run          make                      front door
run          cmake                     configuring
run          ninja-build               building
run          pkg-config                finding libraries
run          qt6-base-dev              windows
run          qt6-tools-dev             texts in other languages
run          qt6-l10n-tools            ...
run          python3                   texts of the command line
run          libqt6svg6                icons
run          libplist-dev              property lists
run          libxcb1-dev               X11
run          libxcb-randr0-dev         displays
run          libxcb-screensaver0-dev   screen savers of an X server
run          libxcb-xkb-dev            keyboard events
run          libwayland-dev            Wayland
run          libxkbcommon-x11-dev      what keys type
run          liblcms2-dev              color profiles
run          libsystemd-dev            event loop, bus
run          libnova-dev               where the sun stands
run          nlohmann-json3-dev        status --json
run          libexpected-dev           results
test         libgtest-dev              tests
test         libgmock-dev              matchers
test         libwayland-dev            a compositor of the tests' own
test         xserver-xorg-core         real X server
test         xserver-xorg-video-dummy  displays without hardware
test         libxcb-xtest0-dev         real key presses
test         x11-xkb-utils             setxkbmap, which changes layouts
test         xdotool                   typing into windows
test         at-spi2-core              the bus of screen readers
test         x11-utils                 xwininfo, which finds what is in a tray; xkill
test         trayer                    a tray that embeds windows
test         lxqt-panel                a tray that asks for items over the bus
test         libglib2.0-bin            gdbus, which speaks to menus, and gio, which opens documents
test         mate-session-manager      a session to log out of
test         openbox                   a window manager
test         gamemode                  games that ask for the machine
test         sway                      a real Wayland compositor
test         qt6-wayland               windows there
test         libwlroots-dev            ... whose outputs are given ramps, where it is 0.15
test         mutter                    GNOME's displays
test         polybar                   bars that show the state
test         waybar                    ...
test         grim                      what a bar draws under Wayland
test         gammastep                 a program that wants the same outputs
test         wlsunset                  another
test         x11-xserver-utils         xrandr lights displays, xset starts screen savers, xmodmap moves keys
test         locales                   one with a comma in its numbers
test         dbus-daemon               buses of the tests' own
test         colord                    the tests' color manager
test         python3-dbusmock          a login manager and screen savers for tests
test         xscreensaver              a screen saver that is like no other
test         desktop-file-utils        desktop entries
test         shared-mime-info          document types
test         appstream                 metainfo
test         libxml2-utils             MIME definition
test         man-db                    manuals, and groff
test         mandoc                    manuals, more strictly
test         bash-completion           completions ...
test         zsh                       ...
test         fish                      ...
test         systemd                   unit ...
test         dbus-user-session         ... and what it asks for
test         librsvg2-bin              icons
test         hicolor-icon-theme        where they are looked for
lint         git                       which files are ours
lint         clang-format              layout
lint         clang-tidy                faults
lint         libclang-rt-dev           a header of the fuzz targets
lint         shellcheck                scripts
fuzz         clang                     libFuzzer
fuzz         libclang-rt-dev           its runtime
bench        libbenchmark-dev          benchmarks
bench        redshift                  a peer to be compared with ...
bench        wlsunset                  ... and one under Wayland
package      git                       the committed sources
package      build-essential           packages, which take it for granted
package      debhelper                 ...
package      lintian                   their rules
package      debootstrap               a fresh system to install them in
screenshots  imagemagick               pictures beside each other
screenshots  fonts-wqy-microhei        Japanese and Chinese
TABLE
)

# Group, kind, and what distributions without apt must offer, whatever their packages are called.
# Libraries have the names that pkg-config gives them.
elsewhere=$(cat <<'TABLE'
run          program  g++ make cmake ninja pkg-config python3
run          library  libplist-2.0 wayland-client xcb xcb-randr xcb-screensaver xcb-xkb xkbcommon-x11 lcms2
run          library  libsystemd Qt6Core nlohmann_json
test         program  Xorg xrandr xset xmodmap setxkbmap xdotool xwininfo trayer lxqt-panel gdbus gio
test         program  mate-session update-mime-database update-desktop-database xscreensaver dbus-daemon
test         library  gtest gmock xcb-xtest wayland-server
lint         program  git clang-format clang-tidy shellcheck
fuzz         program  clang++
bench        program  redshift wlsunset
bench        library  benchmark
package      program  dpkg-buildpackage
screenshots  program  montage
TABLE
)

groups=
for group in "$@"; do
  case $group in
    run | test | lint | fuzz | bench | package | screenshots) groups+=" run $group" ;;
    *) echo "tools/deps.sh does not know the group $group." >&2; exit 2 ;;
  esac
  # These start servers of the tests' own.
  case $group in bench | screenshots) groups+=" test" ;; esac
done

# What this distribution has no package of is named and left out: tests that need it are skipped, and
# building says what it cannot do without.
tell_apart() {
  local package
  offered=() lacking=()
  for package in "$@"; do
    if apt-cache show "$package" >/dev/null 2>&1; then
      offered+=("$package")
    else
      lacking+=("$package")
    fi
  done
}

name_lacking() {
  [ "${#lacking[@]}" -eq 0 ] || echo "Not packaged here, and left out: ${lacking[*]}"
}

install_on_debian() {
  local wanted installed package missing=() as_root=()
  mapfile -t wanted < <(awk -v groups="$groups" 'index(groups " ", " " $1 " ") { print $2 }' <<<"$packages" | sort -u)
  installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' "${wanted[@]}" 2>/dev/null || true)"
  for package in "${wanted[@]}"; do
    [[ $installed == *" installed=$package "* ]] || missing+=("$package")
  done
  if [ "${#missing[@]}" -eq 0 ]; then
    echo "Everything needed is installed."
    return
  fi
  # Where apt has lists already, what they lack is no reason to fetch them anew.
  if apt-cache show make >/dev/null 2>&1; then
    tell_apart "${missing[@]}"
    [ "${#offered[@]}" -gt 0 ] || { name_lacking; return; }
  fi
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Run as root: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  "${as_root[@]}" apt-get update -q
  tell_apart "${missing[@]}"
  name_lacking
  echo "Installing: ${offered[*]}"
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${offered[@]}"
}

list_elsewhere() {
  local group kind names name missing=()
  echo "This is not Debian or a relative of it, so nothing is installed. Needed are Qt 6.4 or later with"
  echo "Widgets, DBus and LinguistTools, tl-expected, libnova, for tests Xorg's dummy video driver, and:"
  while read -r group kind names; do
    [[ "$groups " == *" $group "* ]] || continue
    echo "  $kind: $names"
    for name in $names; do
      if [ "$kind" = program ]; then
        command -v "$name" >/dev/null
      else
        pkg-config --exists "$name" 2>/dev/null
      fi || missing+=("$name")
    done
  done <<<"$elsewhere"
  # Tests that lack a program are skipped; what building lacks it says itself.
  [ "${#missing[@]}" -eq 0 ] || echo "Missing: ${missing[*]}" >&2
}

if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then
  install_on_debian
else
  list_elsewhere
fi
