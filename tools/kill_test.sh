#!/usr/bin/env bash
# kill_test.sh [TIMES]: kills the program TIMES (200) times at random moments, half of them during a long import and
# half during saves. Checks each time that the data file is intact and that the next start reads it. Runs under Wine on
# a virtual display; each kill takes six to nine seconds. Installs missing packages.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

times=${1:-200}
[[ $times =~ ^[1-9][0-9]*$ ]] || Fail "Usage: tools/kill_test.sh [TIMES]" 2
rounds=$(((times + 1) / 2 + 1)) # the first round kills no import
out=$PROJECT/build/kills
Desktop_Open "$out" vellatro shell_standin kill_rounds
WINE_OUT=$out/kills.log
Desktop_Drive "$out" $((rounds * 60 + 60)) kill_rounds "--gtest_repeat=$rounds" || true
good=$(grep -c '^\[       OK ' "$WINE_OUT") || true
[ "$good" = "$rounds" ] || Fail "$((rounds - good)) of $rounds rounds failed; see $WINE_OUT"
echo "$((2 * rounds - 1)) kills; the data file is intact after each"
