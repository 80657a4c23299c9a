#!/usr/bin/env bash
# Measures steps from month to month in the running program and openings of its settings dialog, under Wine on a
# display of its own, and tells the medians. Installs what is missing.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

out=$PROJECT/build/desktop-bench
Desktop_Open "$out" vellatro shell_standin desktop_bench
WINE_OUT=$out/bench.log
Desktop_Drive "$out" 400 desktop_bench || {
  cat "$WINE_OUT" >&2
  Fail "The benchmark has failed"
}
grep '^medians' "$WINE_OUT"
