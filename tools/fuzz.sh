#!/usr/bin/env bash
# fuzz.sh [SECONDS]: gives each reader of files and texts, and the whole program, made-up input for SECONDS (60),
# beginning with fuzz/corpus, and fails at the first that breaks off; what it was given then is in build/fuzz-found.
# Installs what is missing.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/packages.sh"
seconds=${1:-60}
[[ $seconds =~ ^[1-9][0-9]*$ ]] || Fail "fuzz.sh [SECONDS]" 2
Packages_Need build
found=$PROJECT/build/fuzz-found
mkdir -p "$found"
log=$found/build.log
{ cmake --preset fuzz && cmake --build --preset fuzz; } >"$log" 2>&1 </dev/null ||
  Fail "The build has failed; all of it is in $log"
for source in fuzz/*.cpp; do
  name=$(basename "$source" .cpp)
  log=$found/$name.log
  seeds=()
  [ ! -d "fuzz/corpus/$name" ] || seeds=("fuzz/corpus/$name")
  new=$(mktemp -d "$found/$name.XXXXXX") # what is found to lead elsewhere is not kept
  At_Exit rm -rf "$new"
  "build/fuzz/fuzz_$name" -max_total_time="$seconds" -artifact_prefix="$found/$name-" "$new" "${seeds[@]}" >"$log" 2>&1 ||
    Fail "$name breaks off: $(grep -m 1 -E 'ERROR|runtime error' "$log"); see $log"
  Say "$name: $(sed -nE 's/^Done ([0-9]+) runs.*/\1 inputs/p' "$log")"
done
