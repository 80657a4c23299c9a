# shellcheck shell=bash disable=SC2119,SC2120 # the area may be left out
# A Wine desktop with the shell stand-in, and the means to drive the program on it. Sources the other parts and changes
# to the project's folder. All programs started later in the prefix appear on this desktop.
#
#   Desktop_Prepare FOLDER      installs missing packages, empties FOLDER (in build) for a script's results, chooses
#                               the Wine; sets BINARIES to its build folder, and the time zone to UTC, as in the drivers
#   Desktop_Build LOG [TARGET...]   builds the Windows programs, all of them or the targets
#   Desktop_Open FOLDER [TARGET...]   prepares and builds, then starts a display, a prefix and the stand-in
#   Desktop_Drive FOLDER SECONDS DRIVER [ARGUMENT...]   runs a test or benchmark that drives the built program,
#                               in FOLDER, with a clock that the driver can set; returns its exit code
#   Desktop_Start STANDIN.exe [DPI [NAME [WxH [OPTION...]]]]   starts the desktop and the stand-in. Defaults: 96,
#                       "vellatro", 1024x768. A desktop named "shell" has a task bar. OPTIONs go to the stand-in;
#                       "none" starts no stand-in. DESKTOP_OUT is the file with the stand-in's output.
#   Desktop_Shot FILE.png [WxH+X+Y]      takes a picture of the desktop, or of a part of it
#   Desktop_Settled [WxH+X+Y]            succeeds if nothing changes there for half a second
#   Desktop_Wait_For_Calendar SECONDS JOB   waits until the calendar is on the desktop (stand-in with --adopt) and
#                       painted; fails after SECONDS, or if JOB, the calendar's WINE_JOB, exits
#   Desktop_Draws_Pictures               succeeds if this Wine draws the guide's pictures, to the pixel
#   Desktop_End                          ends the desktop and everything else in the prefix

# shellcheck source=/dev/null
. "${BASH_SOURCE[0]%/*}/packages.sh"
for part in display wine; do
  # shellcheck source=/dev/null
  . "tools/$part.sh"
done

desktop_name=
desktop_standin_job=
desktop_bare= # fingerprint of the desktop before any program started

Desktop_Prepare() {
  export TZ=UTC
  Packages_Need build
  Packages_Need desktop
  rm -rf --one-file-system "$1"
  mkdir -p "$1"
  Wine_Setup
  BINARIES=$PROJECT/build/$WINE_PRESET
}

Desktop_Build() {
  local log=$1
  shift
  Say "Building for Windows"
  if ! { cmake --preset "$WINE_PRESET" && cmake --build --preset "$WINE_PRESET" ${1:+--target "$@"}; } \
    >"$log" 2>&1 </dev/null; then
    tail -n 40 "$log" >&2
    Fail "The build failed; see $log"
  fi
}

Desktop_Open() {
  Desktop_Prepare "$1"
  Desktop_Build "$1/build.log" "${@:2}"
  Display_Start 1280x1024x24
  Wine_Prefix "$1/prefix"
  Desktop_Start "$BINARIES/tests/desktop/shell_standin.exe"
}

# Other versions draw texts and menus with other pixels, and the 64-bit one at times its wallpaper over the calendar.
Desktop_Draws_Pictures() { [[ "$WINE_PRESET $(Wine_Inside wine --version)" == 'win32 wine-8.'* ]]; }

Desktop_Drive() {
  local folder=$1 seconds=$2 driver=$3 bits=
  shift 3
  [ "$WINE_PRESET" = win64 ] || bits=-m32
  gcc -O2 ${bits:+"$bits"} -ffreestanding -fno-builtin -fno-stack-protector -nostdlib -shared -fPIC \
    -o "$folder/time_shim.so" tests/desktop/time_shim.c || Fail "Cannot compile the time shim"
  mkdir -p "$folder/tests"
  printf '%-20s\n' 0 >"$folder/clock"
  Wine_Run "$seconds" LD_PRELOAD="$folder/time_shim.so" VT_CLOCK="$folder/clock" \
    "$BINARIES/tests/desktop/$driver.exe" "$(Wine_Path "$BINARIES/vellatro.exe")" "$(Wine_Path "$folder/tests")" \
    "$(Wine_Path "$folder/clock")" "$@"
}

Desktop_Start() {
  local standin=$1 dpi=${2:-96} size=${4:-1024x768}
  desktop_name=${3:-vellatro}
  shift $(($# < 4 ? $# : 4))
  DESKTOP_OUT=$WINEPREFIX/standin.log
  : >"$DESKTOP_OUT"
  # Write the desktop's name to the registry, too: programs that are started without one read it there.
  DISPLAY='' Wine_Registry <<REG
[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"LogPixels"=dword:$(printf %08x "$dpi")

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer]
"Desktop"="$desktop_name"

[HKEY_CURRENT_USER\\Software\\Wine\\Explorer\\Desktops]
"$desktop_name"="$size"
REG
  Wine_Start 86400 explorer.exe "/desktop=$desktop_name,$size"
  Wait_For 30 Desktop_Has_Window || Fail "Wine's desktop did not appear"
  [ "$standin" != none ] || return 0
  WINE_OUT=$DESKTOP_OUT Wine_Start 86400 "$standin" "$@"
  desktop_standin_job=$WINE_JOB
  Wait_For 30 Desktop_Has_Standin || Fail "The shell stand-in did not appear"
  Wait_For 30 Desktop_Settled || Fail "The shell stand-in did not settle"
  desktop_bare=$(Desktop_Print)
}

# Prints the X window of Wine's desktop, or nothing. Each top-level window on the desktop is an X window, too.
Desktop_Window() {
  timeout 5 xdotool search --onlyvisible --name "^$desktop_name - Wine [Dd]esktop\$" 2>/dev/null | head -n 1 || true
}

Desktop_Has_Window() { [ -n "$(Desktop_Window)" ]; }

Desktop_Has_Standin() {
  kill -0 "$desktop_standin_job" 2>/dev/null || Fail "The shell stand-in has exited"
  timeout 5 xdotool search --onlyvisible --name '^Program Manager$' >/dev/null 2>&1
}

Desktop_Shot() { Display_Shot "$1" "${2:-}" "$(Desktop_Window)"; }

Desktop_Print() { Display_Print "${1:-}" "$(Desktop_Window)"; }

Desktop_Settled() {
  local before
  before=$(Desktop_Print "${1:-}")
  sleep 0.5
  [ "$before" = "$(Desktop_Print "${1:-}")" ]
}

# The calendar shows today's event in a message box before it appears, so press OK.
Desktop_Answer_Boxes() {
  if timeout 5 xdotool search --onlyvisible --name '^Vellatro$' >/dev/null 2>&1; then
    timeout 5 xdotool key Return 2>/dev/null || true
  fi
}

Desktop_Wait_For_Calendar() {
  local deadline=$((SECONDS + $1))
  while [ "$SECONDS" -lt "$deadline" ] && kill -0 "$2" 2>/dev/null; do
    if [ ! -s "$DESKTOP_OUT" ]; then
      Desktop_Answer_Boxes
    elif [ "$(Desktop_Print)" != "$desktop_bare" ] && Desktop_Settled; then
      return 0
    fi
    sleep 0.1
  done
  return 1
}

Desktop_End() { Wine_End; }
