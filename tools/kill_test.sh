#!/usr/bin/env bash
# kill_test.sh [TIMES]: kills the program TIMES (200) times at random moments, half of them during a long import and
# half during saves. Checks each time that the data file is intact and that the next start reads it. A round whose
# driver fails, for instance because a window does not open in time, counts apart from a damaged file. Runs under Wine
# on a virtual display; each kill takes six to nine seconds. Installs missing packages.
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
damaged=$(grep -c 'the file is not a state of' "$WINE_OUT") || true
kills=$(($(grep -c '^import killed' "$WINE_OUT") * 2 - 1)) || true
echo "$kills kills; $damaged damaged files; $((rounds - good)) of $rounds rounds failed"
[ "$good" = "$rounds" ] || Fail "See $WINE_OUT"
