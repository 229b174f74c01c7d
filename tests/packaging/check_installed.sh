#!/usr/bin/env bash
# check_installed.sh PREFIX WHAT [BUILD]: checks one kind of the files installed under PREFIX. Ends with
# 77 where the tool that could tell is not installed.
set -euo pipefail
prefix=$1 what=$2
share=$prefix/share
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

need() {
  command -v "$1" >/dev/null || { echo "$1 is not installed"; exit 77; }
}

fail() {
  echo "$*" >&2
  exit 1
}

desktop_entries() {
  need desktop-file-validate
  local autostart=$prefix/etc/xdg/autostart/org.nocturo.Nocturo.desktop
  desktop-file-validate "$share/applications/org.nocturo.Nocturo.desktop" "$autostart"
  # Only who has used Nocturo gets it with the session.
  local command
  command=$(sed -n 's/^Exec=sh -c "\(.*\)"$/\1/p' "$autostart" | sed 's/\\\\\(["$]\)/\1/g')
  local started="exec $prefix/bin/nocturo --at-login;"
  [[ $command == *"$started"* ]] || fail "autostart does not start $prefix/bin/nocturo"
  command=${command/"$started"/echo started;}
  [ -z "$(HOME=$work XDG_CONFIG_HOME='' sh -c "$command")" ] || fail "starts for everybody"
  mkdir -p "$work/.config/nocturo"
  touch "$work/.config/nocturo/settings.plist"
  [ "$(HOME=$work XDG_CONFIG_HOME='' sh -c "$command")" = started ] || fail "starts for nobody"
}

# Position independent, read-only once it is linked, which is at the start, no code on the stack; and what
# compilers add to watch buffers, which shows where it is taken from the C library.
hardened() {
  need readelf
  local file facts
  for file in "$prefix"/bin/* "$prefix"/libexec/* "$prefix"/lib*/nocturo/*.so; do
    facts=$(readelf -Whld "$file")
    [[ $facts == *"Type:"*"DYN"* ]] || fail "$file is not position independent"
    [[ $facts == *GNU_RELRO* ]] || fail "$file stays writable where it is linked"
    [[ $facts =~ (BIND_NOW|Flags:.*NOW) ]] || fail "$file is linked as it goes"
    [[ $facts =~ GNU_STACK[^$'\n']*" RW " ]] || fail "$file may run code on the stack"
    if [[ $facts == *NEEDED*libc.so* ]]; then
      facts=$(readelf -W --dyn-syms "$file")
      [[ $facts == *__stack_chk_fail* ]] || fail "$file has no stack protector"
      # The others call nothing that could be checked.
      [[ $file != */bin/* || $facts == *_chk@* ]] || fail "$file is not fortified"
    fi
  done
}

metainfo() {
  need appstreamcli
  appstreamcli validate --no-net "$share/metainfo/org.nocturo.Nocturo.metainfo.xml"
  # Holds the entry, its icon and the metainfo against each other.
  mkdir "$work/usr"
  cp -r "$share" "$work/usr/"
  appstreamcli validate-tree --no-net "$work"
}

mime_type() {
  need update-mime-database
  need xmllint
  local type=application/x-nocturo-effect+plist
  xmllint --noout "$share/mime/packages/org.nocturo.Nocturo.xml"
  cp -r "$share/mime" "$work/mime"
  update-mime-database "$work/mime"
  grep -qx "50:$type:\*\.nocturo" "$work/mime/globs2" || fail "*.nocturo is not $type"
  grep -q "^MimeType=.*$type;" "$share/applications/org.nocturo.Nocturo.desktop" ||
    fail "Nocturo does not open $type"
  [ -e "$share/icons/hicolor/scalable/mimetypes/${type/\//-}.svg" ] || fail "$type has no icon"
}

manuals() {
  need man
  local page said pages=0
  for page in "$share"/man/man[18]/*.[18]; do
    said=$(MANWIDTH=80 LC_ALL=C.UTF-8 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>&1 >/dev/null)
    [ -z "$said" ] || fail "$said"
    ! command -v mandoc >/dev/null || mandoc -Tlint -Wwarning "$page"
    pages=$((pages + 1))
  done
  [ "$pages" = 3 ] || fail "three pages are wanted"
}

completions() {
  local file
  for file in "$share"/bash-completion/completions/nocturo*; do
    bash -n "$file"
  done
  for file in "$share"/zsh/site-functions/_nocturo*; do
    ! command -v zsh >/dev/null || zsh -n "$file"
  done
  for file in "$share"/fish/vendor_completions.d/*.fish; do
    ! command -v fish >/dev/null || fish -n "$file"
  done
}

unit() {
  need systemd-analyze
  local service=$share/dbus-1/services/org.nocturo.Nocturo.service
  grep -qx "Exec=$prefix/bin/nocturo" "$service" || fail "the bus starts something else"
  grep -qx "SystemdService=nocturo.service" "$service" || fail "the bus does not know the unit"
  local said
  said=$(XDG_RUNTIME_DIR=$work systemd-analyze verify --user --man=no \
    "$prefix/lib/systemd/user/nocturo.service" 2>&1) || fail "$said"
  # It names other units' faults too, and forgives unknown words.
  [[ $said != *nocturo.service* ]] || fail "$said"
}

# Every icon can be drawn, by renderers of SVG Tiny as well, and symbolic ones take the color that they are
# told.
icons() {
  need rsvg-convert
  local icon size name directory
  for name in scalable/apps/org.nocturo.Nocturo symbolic/apps/org.nocturo.Nocturo-symbolic \
    symbolic/apps/nocturo-status{,-active}-symbolic; do
    [ -e "$share/icons/hicolor/$name.svg" ] || fail "$name is missing"
  done
  local index=/usr/share/icons/hicolor/index.theme
  [ -e "$index" ] || { echo "hicolor-icon-theme is not installed"; exit 77; }
  while read -r directory; do
    grep -qE "^Directories=(.*,)?$directory(,|\$)" "$index" || fail "nobody looks into $directory"
  done < <(cd "$share/icons/hicolor" && find . -type f -printf '%P\n' | xargs dirname | sort -u)
  ! grep -lrE 'clip-path|<mask|<filter' "$share/icons" || fail "Qt draws these without that"
  echo '.ColorScheme-Text, path { color: #ff0000 !important; }' >"$work/red.css"
  while read -r icon; do
    for size in 16 22 48 256; do
      rsvg-convert -w "$size" -h "$size" "$icon" -o "$work/icon.png"
    done
    [[ $icon == *-symbolic.svg ]] || continue
    rsvg-convert -w 16 -h 16 --stylesheet "$work/red.css" "$icon" -o "$work/red.png"
    rsvg-convert -w 16 -h 16 "$icon" -o "$work/icon.png"
    ! cmp -s "$work/red.png" "$work/icon.png" || fail "$icon keeps a color of its own"
  done < <(find "$share/icons" -name '*.svg')
}

# DESTDIR and the prefix are honoured together, and what belongs to the system is below /etc.
destination() {
  DESTDIR=$work cmake --install "$1" --prefix /usr >/dev/null
  [ "$(ls "$work")" = $'etc\nusr' ] || fail "files beside /etc and /usr"
  local file
  for file in usr/bin/nocturo usr/bin/nocturoctl usr/libexec/nocturo-guard usr/libexec/nocturo-bus-guard \
    usr/libexec/nocturo-profile-guard; do
    [ -x "$work/$file" ] || fail "$file is missing"
  done
  grep -q '^Exec=.*exec /usr/bin/nocturo --at-login;' "$work/etc/xdg/autostart/org.nocturo.Nocturo.desktop"
  grep -qx 'ExecStart=/usr/bin/nocturo' "$work/usr/lib/systemd/user/nocturo.service"
  ! grep -rl "$work" "$work/usr/share" "$work/usr/lib" "$work/etc" || fail "DESTDIR is inside these files"
}

"$what" "${@:3}"
