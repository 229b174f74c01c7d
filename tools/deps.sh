#!/usr/bin/env bash
# Installs what building, testing and linting Nocturo needs on Debian and its relatives, or says what
# is missing elsewhere. Quick and silent on the network when nothing is missing.
set -euo pipefail

packages=(
  # Building
  g++                       # compiler
  make                      # front door
  cmake                     # configuring
  ninja-build               # building
  pkg-config                # finding libraries
  qt6-base-dev              # event loop, bus, pictures
  qt6-tools-dev             # texts in other languages
  qt6-l10n-tools            # ...
  python3                   # texts of the command line, the tests' own calculation
  libqt6svg6                # icons
  libplist-dev              # property lists
  libglib2.0-dev            # desktop entries
  libxcb1-dev               # X11
  libxcb-randr0-dev         # displays
  libxcb-screensaver0-dev   # screen savers of an X server
  libxcb-xkb-dev            # keyboard events
  libxkbcommon-x11-dev      # what keys type
  liblcms2-dev              # color profiles
  libsystemd-dev            # nocturoctl's bus, colord
  nlohmann-json3-dev        # status --json
  # Testing
  libgtest-dev              # tests
  libgmock-dev              # matchers
  libbenchmark-dev          # benchmarks
  xserver-xorg-core         # real X server
  xserver-xorg-video-dummy  # displays without hardware
  libxcb-xtest0-dev         # real key presses
  x11-xkb-utils             # setxkbmap, which changes layouts
  xdotool                   # typing into windows
  x11-utils                 # xwininfo, which finds what is in a tray
  trayer                    # a tray that embeds windows
  lxqt-panel                # a tray that asks for items over the bus
  libglib2.0-bin            # gdbus, which speaks to menus, and gio, which opens documents
  mate-session-manager      # a session to log out of
  x11-xserver-utils         # xrandr lights displays, xset starts screen savers, xmodmap moves keys
  locales                   # one with a comma in its numbers
  dbus-daemon               # buses of the tests' own
  colord                    # the tests' color manager
  python3-dbusmock          # a login manager and screen savers for tests
  xscreensaver              # a screen saver that is like no other
  desktop-file-utils        # desktop entries
  shared-mime-info          # document types
  # Fuzzing
  clang                     # libFuzzer
  libclang-rt-dev           # its runtime
  appstream                 # metainfo
  libxml2-utils             # MIME definition
  man-db                    # manuals, and groff
  mandoc                    # manuals, more strictly
  bash-completion           # completions ...
  zsh                       # ...
  fish                      # ...
  systemd                   # unit ...
  dbus-user-session         # ... and what it asks for
  librsvg2-bin              # icons
  hicolor-icon-theme        # where they are looked for
  # Packaging
  build-essential           # packages, which take it for granted
  debhelper                 # ...
  lintian                   # their rules
  debootstrap               # a fresh system to install them in
  # Linting
  git                       # which files are ours
  clang-format              # layout
  clang-tidy                # faults, and clang's view of the code
  shellcheck                # scripts
)

# What other distributions must offer, whatever their packages are called.
programs=(g++ make cmake ninja pkg-config Xorg xrandr xset xmodmap setxkbmap xdotool xwininfo trayer lxqt-panel gdbus gio mate-session update-mime-database update-desktop-database xscreensaver dbus-daemon python3)
modules=(libplist-2.0 glib-2.0 xcb xcb-randr xcb-screensaver xcb-xkb xcb-xtest xkbcommon-x11 lcms2 libsystemd Qt6Core nlohmann_json gtest gmock benchmark)
linters=(git clang-format clang-tidy shellcheck)

install_on_debian() {
  local installed missing=() package
  installed=" $(dpkg-query -W -f '${db:Status-Status}=${Package} ' "${packages[@]}" 2>/dev/null || true)"
  for package in "${packages[@]}"; do
    [[ $installed == *" installed=$package "* ]] || missing+=("$package")
  done
  if [ "${#missing[@]}" -eq 0 ]; then
    echo "Everything needed is installed."
    return
  fi
  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Run as root: apt-get install ${missing[*]}" >&2
      exit 1
    fi
    as_root=(sudo)
  fi
  echo "Installing: ${missing[*]}"
  "${as_root[@]}" apt-get update -q
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -q -y --no-install-recommends "${missing[@]}"
}

list_elsewhere() {
  local missing=() wanted=() name
  for name in "${programs[@]}"; do
    command -v "$name" >/dev/null || missing+=("$name")
  done
  for name in "${modules[@]}"; do
    pkg-config --exists "$name" 2>/dev/null || missing+=("$name (library with headers)")
  done
  for name in "${linters[@]}"; do
    command -v "$name" >/dev/null || wanted+=("$name")
  done
  echo "This is not Debian or a relative of it, so nothing is installed. Nocturo needs:"
  echo "  programs:  ${programs[*]}"
  echo "  libraries: ${modules[*]} (as pkg-config names them), Qt 6.4 or later with Widgets, DBus and LinguistTools"
  echo "  Xorg's dummy video driver for the tests; for lint: ${linters[*]}; for fuzz: clang++"
  if [ "${#wanted[@]}" -gt 0 ]; then
    echo "Missing for make lint: ${wanted[*]}"
  fi
  if [ "${#missing[@]}" -gt 0 ]; then
    printf 'Missing:\n' >&2
    printf '  %s\n' "${missing[@]}" >&2
    exit 1
  fi
  echo "All of it is here."
}

if command -v apt-get >/dev/null && command -v dpkg-query >/dev/null; then
  install_on_debian
else
  list_elsewhere
fi
