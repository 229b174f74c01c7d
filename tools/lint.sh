#!/usr/bin/env bash
# "text" checks the layout of the code and the scripts; "code BUILD JOBS" the code itself, as compiled
# in BUILD, which must have been built because generated headers are read. With ANALYZER_MODE=shallow
# the path-sensitive analyzer takes a quarter of its time and follows fewer calls.
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

# tidy DATABASE JOBS CHECKS. The compiler may know warnings that clang does not, and be told to take its
# own for errors, which would bring in those of libraries' macros.
tidy() {
  printf '%s\0' "$1"/*.cpp |
    xargs -0 -P "$2" -n 1 clang-tidy --quiet -p "$1" --config-file=.clang-tidy --checks="$3" \
      --header-filter="^$PWD/src/" --extra-arg=-Wno-unknown-warning-option --extra-arg=-Wno-error \
      --extra-arg=-Xclang --extra-arg=-analyzer-config --extra-arg=-Xclang \
      --extra-arg="mode=${ANALYZER_MODE:-deep}" \
      2> >(grep -v 'warnings\? generated\.$' >&2)
}

check_code() {
  local build=$1 jobs=$2 joint=build/lint
  rm -rf "$joint"
  tools/lint_together.py "$build" "$joint"
  tidy "$joint/included" "$jobs" '-clang-analyzer-*,-bugprone-suspicious-include'
  tidy "$joint/text" "$jobs" '-*,clang-analyzer-*,-clang-analyzer-cplusplus.NewDeleteLeaks' |
    tools/lint_together.py --where
}

# The fuzz targets are built by clang alone and rarely; what they use changes every day.
check_fuzz_targets() {
  printf '%s\0' tests/fuzz/*.cpp |
    xargs -0 -I '{}' clang-tidy --quiet '--checks=-*,bugprone-infinite-loop' '{}' -- -std=c++20 -Isrc -Itests \
      2> >(grep -v 'warnings\? generated\.$' >&2)
}

case "${1:-}" in
  text) check_text ;;
  code)
    check_fuzz_targets
    check_code "$2" "${3:-2}"
    ;;
  *) echo "usage: tools/lint.sh text | code BUILD [JOBS]" >&2; exit 2 ;;
esac
