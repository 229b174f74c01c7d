#!/usr/bin/env bash
# "text" checks the layout of the code and the scripts; "code JOBS" the code itself.
set -euo pipefail
cd "$(dirname "$0")/.."

# Tracked files and new ones that are not ignored, as they stand.
ours() {
  git ls-files --cached --others --exclude-standard -- "$@" | while read -r file; do
    [ ! -e "$file" ] || echo "$file"
  done
}

check_text() {
  local code scripts
  mapfile -t code < <(ours '*.cpp' '*.h')
  mapfile -t scripts < <(ours '*.sh' '*.bash' .ci/run)
  echo "clang-format: ${#code[@]} files"
  clang-format --dry-run -Werror "${code[@]}"
  echo "shellcheck: ${#scripts[@]} scripts"
  shellcheck "${scripts[@]}"
}

# tidy JOBS CHECKS FILE...
tidy() {
  local jobs=$1 checks=$2
  shift 2
  printf '%s\0' "$@" |
    xargs -0 -P "$jobs" -n 1 clang-tidy --quiet -p build/lint --header-filter="^$PWD/src/" \
      --checks="$checks" --extra-arg=-Wno-unknown-warning-option \
      2> >(grep -v 'warnings\? generated\.$' >&2) # the compiler may know some that clang does not
}

# Reading Qt's headers, and looking for faults in them, takes most of the time. A unity build includes
# many sources in one, so that it happens once for all of them. Generated headers are made, not built.
check_code() {
  local jobs=$1 made sources
  cmake --preset lint >/dev/null
  mapfile -t made < <(ninja -C build/lint -t targets all |
    sed -n 's/^\(cmake_object_order_depends_target_[^:]*\):.*/\1/p')
  ninja -C build/lint -j "$jobs" "${made[@]}" >/dev/null
  mapfile -t sources < <(grep '"file":' build/lint/compile_commands.json | cut -d '"' -f 4 |
    grep -E "/Unity/|^$PWD/src/.*cpp$")
  echo "clang-tidy: $(ours 'src/*.cpp' | wc -l) files"
  tidy "$jobs" '-clang-analyzer-*,-bugprone-suspicious-include' "${sources[@]}"
  # The analyzer passes over what is included, so the sources' text takes the place of the includes.
  # What it finds has the line numbers of that file, which the next configuration replaces.
  # shellcheck disable=SC2016 # Perl's variables
  printf '%s\0' "${sources[@]}" | grep -z '/Unity/' | xargs -0 perl -pi -e \
    'if (m{^#include "(/.*\.cpp)"}) { local $/; open my $file, "<", $1 or die; $_ = <$file> }'
  echo "clang analyzer: the same in ${#sources[@]} files"
  tidy "$jobs" '-*,clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks' "${sources[@]}"
}

case "${1:-}" in
  text) check_text ;;
  code) check_code "${2:-2}" ;;
  *) echo "usage: tools/lint.sh text | code [JOBS]" >&2; exit 2 ;;
esac
