#!/usr/bin/env bash
# Measures the program under Wine: size, time until the first picture, memory, objects, and processor time at rest. For
# comparison it measures a bare window program of the same toolchain and accessories that come with Wine. All of them
# run in turn on one desktop with the shell stand-in. Takes six minutes and installs missing packages. Usage:
# tools/figures.sh [ROUNDS [IDLE_SECONDS]]; the defaults are 15 starts and 60 s each.
set -euo pipefail
rounds=${1:-15}
idle=${2:-60}
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

out=$PROJECT/build/figures
folder=$out/Vellatro

# Prints the processor time of a process, with all its threads, in microseconds.
Processor_Time() { cat /proc/"$1"/task/*/schedstat | awk '{ sum += $1 } END { printf "%d\n", sum / 1000 }'; }

# Prints the memory that a process shares with no other, in KB.
Private_Memory() { awk '/^Private_(Clean|Dirty):/ { sum += $2 } END { print sum }' "/proc/$1/smaps_rollup"; }

Server_Pid() {
  local name
  for name in wineserver wineserver32 wineserver64; do Wine_Pids "$name"; done | head -n 1
}

Held() { grep -q "^holds" "$WINE_OUT"; }

# Hold PROGRAM CLASS: prints the figures of the program at rest.
Hold() {
  local process server private before_process before_server
  local WINE_OUT=$out/$2.log
  : >"$WINE_OUT"
  Wine_Start $((idle + 60)) "$measure" hold $((idle + 20)) "$1" "$2"
  Wait_For 40 Held || Fail "$2 did not appear: $(cat "$WINE_OUT")"
  process=$(Wine_Pids "${1##*\\}")
  server=$(Server_Pid)
  private=$(Private_Memory "$process")
  before_process=$(Processor_Time "$process")
  before_server=$(Processor_Time "$server")
  sleep "$idle"
  printf '%s: private memory %d KB at first, %d KB after %d s; %s; processor time %d us, of the Wine server %d us\n' \
    "$2" "$private" "$(Private_Memory "$process")" "$idle" "$(sed -n 's/^holds [^:]*: //p' "$WINE_OUT")" \
    $(($(Processor_Time "$process") - before_process)) $(($(Processor_Time "$server") - before_server))
  wait "$WINE_JOB" || true
}

Desktop_Open "$out" vellatro shell_standin bare_window program_figures
xdotool mousemove 1279 1023 # a resting mouse would open a tooltip
measure=$BINARIES/bench/desktop/program_figures.exe
mkdir -p "$folder"
cp "$BINARIES/vellatro.exe" "$folder/"
# An ordinary calendar: an event on every third day of the year.
for month in {1..12}; do
  for day in {1..28..3}; do printf '"%d/%d/9999=Event of the %d. %d."\r\n' "$day" "$month" "$day" "$month"; done
done >"$folder/calendar.dat"

Wine_Registry <<'REG'
[HKEY_CURRENT_USER\Software\Vellatro\Settings]
"Show Alerts"="0"
REG
programs=("$(Wine_Path "$BINARIES/bench/desktop/bare_window.exe")" Bare_Window
  "$(Wine_Path "$folder/vellatro.exe")" Vellatro_Calendar
  'C:\windows\system32\clock.exe' CLClass
  'C:\windows\system32\notepad.exe' Notepad)

date -u '+%F %R UTC'
printf 'commit %s%s\n' "$(git rev-parse --short HEAD)" "$(git diff --quiet HEAD || echo ', with changes')"
printf 'processors %s, load %s at the start\n' "$(nproc)" "$(cut -d' ' -f1-3 /proc/loadavg)"
stat -c 'size of %n: %s bytes' "$folder/vellatro.exe" "$BINARIES/bench/desktop/bare_window.exe" | sed "s,$PROJECT/,,"
WINE_OUT=$out/starts.log
Wine_Run $((rounds * 30 + 120)) "$measure" starts "$rounds" "${programs[@]}" || Fail "$(cat "$WINE_OUT")"
grep '^start' "$WINE_OUT"
for ((i = 0; i < ${#programs[@]}; i += 2)); do Hold "${programs[i]}" "${programs[i + 1]}"; done
printf 'load %s at the end\n' "$(cut -d' ' -f1-3 /proc/loadavg)"
