#!/usr/bin/env bash
# kill_test.sh [TIMES]: kills the program TIMES (200) times at random moments, half of them during a long import and
# half during saves, and checks each time that the data file is whole and that the next start reads it. Under Wine
# on a display of its own; six to nine seconds a time. Installs what is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
for part in common packages display wine desktop; do
  # shellcheck source=/dev/null
  . "tools/$part.sh"
done
cd "$PROJECT"
export TZ=UTC

times=${1:-200}
[[ $times =~ ^[1-9][0-9]*$ ]] || Fail "kill_test.sh [TIMES]" 2
rounds=$(((times + 1) / 2 + 1)) # the first one kills no import
out=$PROJECT/build/kills
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
WINE_OUT=$out/kills.log
Wine_Run $((rounds * 60 + 60)) LD_PRELOAD="$out/time_shim.so" VT_CLOCK="$out/clock" \
  "$binaries/tests/desktop/desktop_kills.exe" "$(Wine_Path "$binaries/vellatro.exe")" \
  "$(Wine_Path "$out/tests")" "$(Wine_Path "$out/clock")" "--gtest_repeat=$rounds" || true
good=$(grep -c '^\[       OK ' "$WINE_OUT") || true
[ "$good" = "$rounds" ] || Fail "$((rounds - good)) of $rounds rounds have failed; see $WINE_OUT"
echo "$((2 * rounds - 1)) kills, the data file whole after each"
