#!/usr/bin/env bash
# Runs every fuzz target of BUILD for SECONDS, from the seeds and what earlier runs found. Stops at the
# first fault and leaves the input that shows it in BUILD/faults.
set -euo pipefail
cd "$(dirname "$0")/.."
build=$1 seconds=$2
mkdir -p "$build/faults"
for target in "$build"/bin/*_fuzz; do
  name=$(basename "$target")
  found=$build/found/$name
  log=$build/$name.log
  mkdir -p "$found"
  echo "$name: $seconds seconds"
  if ! "$target" -max_total_time="$seconds" -timeout=5 -max_len=65536 -print_final_stats=1 \
    -dict=tests/fuzz/property_list.dict -artifact_prefix="$build/faults/$name-" \
    "$found" tests/fuzz/seeds >"$log" 2>&1; then
    tail -n 60 "$log" >&2
    exit 1
  fi
  grep number_of_executed_units "$log"
done
