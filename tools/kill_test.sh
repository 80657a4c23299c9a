#!/usr/bin/env bash
# kill_test.sh [TIMES]: kills the program TIMES (200) times at random moments, half of them during a long import and
# half during saves. Checks each time that the data file is intact and that the next start reads it. Counts rounds that
# damaged a file apart from rounds that failed otherwise, for instance because a window opened too late. Runs under
# Wine on a virtual display; each kill takes six to nine seconds. Installs missing packages.
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
damaged=$(grep -cE 'is not a state of|the second save is missing|Error loading' "$WINE_OUT") || true
echo "$((good > 0 ? 2 * good - 1 : 0)) kills in $good good rounds; $((rounds - good)) rounds failed, $damaged times by the data file"
[ "$good" = "$rounds" ] || Fail "See $WINE_OUT"
