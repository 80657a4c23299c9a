#!/usr/bin/env bash
# Times steps from month to month in the running program and openings of its settings dialog, under Wine on a virtual
# display, and prints the medians. Installs missing packages.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

out=$PROJECT/build/desktop-bench
Desktop_Open "$out" vellatro shell_standin desktop_bench
WINE_OUT=$out/bench.log
Desktop_Drive "$out" 400 desktop_bench || {
  cat "$WINE_OUT" >&2
  Fail "The benchmark failed"
}
grep '^medians' "$WINE_OUT"
