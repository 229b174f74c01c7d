#!/usr/bin/env bash
# "text" checks the layout of the code and the scripts; "code BUILD JOBS" checks the code itself, as
# compiled in BUILD, which must have been built because generated headers are read.
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

# The compiler that made the database may know warnings that clang does not. Headers are seen through
# the files that include them; generated ones lie outside of src and are left out.
check_code() {
  local build=$1 jobs=$2 sources
  mapfile -t sources < <(ours 'src/*.cpp')
  echo "clang-tidy: ${#sources[@]} files"
  printf '%s\0' "${sources[@]}" |
    xargs -0 -P "$jobs" -n 1 clang-tidy --quiet -p "$build" --header-filter="^$PWD/src/" \
      --extra-arg=-Wno-unknown-warning-option 2> >(grep -v 'warnings\? generated\.$' >&2)
}

case "${1:-}" in
  text) check_text ;;
  code) check_code "$2" "${3:-2}" ;;
  *) echo "usage: tools/lint.sh text | code BUILD [JOBS]" >&2; exit 2 ;;
esac
