#!/usr/bin/env bash
# Measures steps from month to month in the running program and openings of its settings dialog, under Wine on a
# display of its own, and tells the medians. Installs what is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
for part in common packages display wine desktop; do
  # shellcheck source=/dev/null
  . "tools/$part.sh"
done
cd "$PROJECT"
export TZ=UTC

out=$PROJECT/build/desktop-bench
Packages_Need build
Packages_Need desktop
rm -rf --one-file-system "$out"
mkdir -p "$out/tests"
Wine_Setup
binaries=$PROJECT/build/$WINE_PRESET
{ cmake --preset "$WINE_PRESET" && cmake --build --preset "$WINE_PRESET"; } >"$out/build.log" 2>&1 </dev/null ||
  Fail "The build has failed; all of it is in $out/build.log"
bits=$([ "$WINE_PRESET" = win64 ] || echo -m32)
gcc -O2 ${bits:+"$bits"} -ffreestanding -fno-builtin -fno-stack-protector -nostdlib -shared -fPIC \
  -o "$out/time_shim.so" tests/desktop/time_shim.c
Display_Start 1280x1024x24
Wine_Prefix "$out/prefix"
Desktop_Start "$binaries/tests/desktop/shell_standin.exe"
printf '%-20s\n' 0 >"$out/clock"
WINE_OUT=$out/bench.log
Wine_Run 400 LD_PRELOAD="$out/time_shim.so" VT_CLOCK="$out/clock" "$binaries/tests/desktop/desktop_bench.exe" \
  "$(Wine_Path "$binaries/vellatro.exe")" "$(Wine_Path "$out/tests")" "$(Wine_Path "$out/clock")" || {
  cat "$WINE_OUT" >&2
  Fail "The benchmark has failed"
}
grep '^medians' "$WINE_OUT"
