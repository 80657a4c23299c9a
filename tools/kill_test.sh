#!/usr/bin/env bash
# kill_test.sh [TIMES]: kills the program TIMES (200) times at random moments, half of them during a long import and
# half during saves, and checks each time that the data file is whole and that the next start reads it. Under Wine
# on a display of its own; six to nine seconds a time. Installs what is missing.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

times=${1:-200}
[[ $times =~ ^[1-9][0-9]*$ ]] || Fail "kill_test.sh [TIMES]" 2
rounds=$(((times + 1) / 2 + 1)) # the first one kills no import
out=$PROJECT/build/kills
Desktop_Open "$out" vellatro shell_standin kill_rounds
WINE_OUT=$out/kills.log
Desktop_Drive "$out" $((rounds * 60 + 60)) kill_rounds "--gtest_repeat=$rounds" || true
good=$(grep -c '^\[       OK ' "$WINE_OUT") || true
[ "$good" = "$rounds" ] || Fail "$((rounds - good)) of $rounds rounds have failed; see $WINE_OUT"
echo "$((2 * rounds - 1)) kills, the data file whole after each"
