#!/usr/bin/env bash
# random_use.sh [MINUTES]: uses the program at random for MINUTES (60): calendar, menus, editor, all settings pages,
# imports and exports, jumps of the clock, changes of the screen. Fails if the program crashes, hangs or leaks objects,
# and prints its resource use each minute. Runs under Wine on a virtual display. Installs missing packages.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

export VT_MINUTES=${1:-60}
[[ $VT_MINUTES =~ ^[1-9][0-9]*$ ]] || Fail "Usage: tools/random_use.sh [MINUTES]" 2
out=$PROJECT/build/random
Desktop_Open "$out" vellatro shell_standin random_use
WINE_OUT=$out/random.log
code=0
Desktop_Drive "$out" $((VT_MINUTES * 60 + 300)) random_use || code=$?
grep -vE '^(\[|Note:|$)' "$WINE_OUT"
[ "$code" = 0 ] || Fail "The program failed; see $WINE_OUT"
