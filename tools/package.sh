#!/usr/bin/env bash
# "dist" makes the source tarball of what is committed, "deb" a Debian package from that tarball;
# both are left in build/package.
set -euo pipefail
cd "$(dirname "$0")/.."
version=$(sed -n 's/^project(nocturo VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
out=$PWD/build/package
tarball=$out/nocturo-$version.tar.gz

# Sources that came as a tarball have no history and are packed as they stand.
make_tarball() {
  mkdir -p "$out"
  if [ -e .git ]; then
    [ -z "$(git status --porcelain)" ] || echo "What is not committed is left out." >&2
    git archive --prefix="nocturo-$version/" HEAD | gzip -9 -n >"$tarball"
  else
    tar -c --exclude=./build --transform="s,^\.,nocturo-$version," --sort=name --owner=0 --group=0 \
      --numeric-owner . | gzip -9 -n >"$tarball"
  fi
  echo "$tarball"
}

make_deb() {
  local source=$out/deb/nocturo-$version
  rm -rf "$out/deb"
  mkdir -p "$out/deb"
  tar -xzf "$tarball" -C "$out/deb"
  cp -r packaging/debian "$source/debian"
  cp "$tarball" "$out/deb/nocturo_$version.orig.tar.gz"
  if [[ $(dpkg-parsechangelog -l "$source/debian/changelog" -S Version) != "$version"-* ]]; then
    echo "packaging/debian/changelog does not tell of version $version." >&2
    exit 1
  fi
  # Symbols of programs this small are had by building again.
  (cd "$source" &&
    DEB_BUILD_OPTIONS="noautodbgsym terse parallel=${JOBS:-$(nproc)}" dpkg-buildpackage -us -uc) \
    >"$out/deb/build.log" 2>&1 || { tail -n 40 "$out/deb/build.log" >&2; exit 1; }
  rm -f "$out"/*.deb
  mv "$out/deb"/*.deb "$out/"
  rm -rf "$source"
  ls "$out"/*.deb
}

case "${1:-}" in
  dist) make_tarball ;;
  deb) make_tarball && make_deb ;;
  *) echo "usage: tools/package.sh dist | deb" >&2; exit 2 ;;
esac
