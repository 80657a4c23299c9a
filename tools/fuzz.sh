#!/usr/bin/env bash
# fuzz.sh [SECONDS]: runs each fuzz target, one for each reader of files and texts and one for the whole program, for
# SECONDS (60) on generated input, starting from fuzz/corpus. Stops at the first failure and keeps its input in
# build/fuzz-found. Installs missing packages.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/packages.sh"
seconds=${1:-60}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || Fail "Usage: tools/fuzz.sh [SECONDS]" 2
Packages_Need build
found=$PROJECT/build/fuzz-found
mkdir -p "$found"
log=$found/build.log
{ cmake --preset fuzz && cmake --build --preset fuzz; } >"$log" 2>&1 </dev/null ||
  Fail "The build failed; see $log"
for source in fuzz/*.cpp; do
  name=$(basename "$source" .cpp)
  log=$found/$name.log
  seeds=()
  [ ! -d "fuzz/corpus/$name" ] || seeds=("fuzz/corpus/$name")
  new=$(mktemp -d "$found/$name.XXXXXX") # new inputs that reach more code are not kept
  At_Exit rm -rf "$new"
  # Long use reaches states of the whole program that short inputs, which libFuzzer prefers, do not.
  [ "$name" != program ] || head -c 800000 /dev/urandom | split -b 4000 - "$new/"
  "build/fuzz/fuzz_$name" -max_total_time="$seconds" -artifact_prefix="$found/$name-" "$new" "${seeds[@]}" >"$log" 2>&1 ||
    Fail "$name failed: $(grep -m 1 -E 'ERROR|runtime error' "$log"); see $log"
  Say "$name: $(sed -nE 's/^Done ([0-9]+) runs.*/\1 inputs/p' "$log")"
done
