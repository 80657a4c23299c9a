# shellcheck shell=bash
# The X display that Wine draws on, a virtual one or the user's, and pictures of it. Source it after common.sh. It knows
# nothing of Wine.
#
#   Display_Usable              succeeds if DISPLAY names a display that answers
#   Display_Start [WxHxDEPTH]   starts a virtual display on a free number, exports DISPLAY, ends it at the script's exit
#   Display_Shot FILE.png [WxH+X+Y [WINDOW]]   saves the pixels of the display or of a window, whole or in part
#   Display_Print [WxH+X+Y [WINDOW]]           prints a fingerprint of the same pixels, to detect changes

Display_Usable() { [ -n "${DISPLAY:-}" ] && timeout 5 xdpyinfo >/dev/null 2>&1; }

Display_Start() {
  local number_file
  number_file=$(mktemp)
  # The server must end with the script, even if the script is killed without a chance to clean up.
  setpriv --pdeathsig TERM Xvfb -displayfd 3 -screen 0 "${1:-1280x1024x24}" -nolisten tcp -noreset \
    3>"$number_file" >/dev/null 2>&1 &
  At_Exit Display_End $!
  Wait_For 20 test -s "$number_file" || Fail "The virtual display did not start"
  DISPLAY=:$(tr -d '\n' <"$number_file")
  export DISPLAY
  unset XAUTHORITY
  rm -f "$number_file"
  Wait_For 10 Display_Usable || Fail "The virtual display $DISPLAY does not answer"
}

Display_End() {
  kill "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
}

Display_Shot() {
  timeout 20 import -silent -window "${3:-root}" ${2:+-crop "$2" +repage} "png24:$1"
}

Display_Print() {
  timeout 20 import -silent -window "${2:-root}" ${1:+-crop "$1" +repage} -depth 8 rgb:- | cksum
}
