# shellcheck shell=bash disable=SC2034 # its variables are used where it is sourced
# What every script of the project needs: the project's folder, messages, and an orderly end.
# Sourced, never run. It installs, builds and starts nothing itself.
#
#   PROJECT                 the project's folder, absolute; CACHE the folder that outlives a run
#   Say TEXT / Fail TEXT [CODE]   a line on standard error; Fail then ends the script (default code 1)
#   At_Exit COMMAND...      run at the script's end, last given first, whatever ends it
#   Wait_For SECONDS COMMAND...   polls until COMMAND succeeds; 1 after the deadline

PROJECT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)
if [ "$(id -u)" = 0 ]; then
  CACHE=/var/cache/vellatro
else
  CACHE=${XDG_CACHE_HOME:-$HOME/.cache}/vellatro
fi

exit_commands=()
shell_of_exit=$BASHPID

Say() { printf '%s\n' "$*" >&2; }

Fail() {
  Say "$1"
  exit "${2:-1}"
}

At_Exit() { exit_commands+=("$(printf '%q ' "$@")"); }

# A subshell inherits the trap's text in some versions of bash: only the script itself cleans up.
Run_Exit_Commands() {
  local code=$? i
  [ "$BASHPID" = "$shell_of_exit" ] || return "$code"
  trap '' INT TERM HUP
  set +e
  for ((i = ${#exit_commands[@]} - 1; i >= 0; i--)); do eval "${exit_commands[i]}"; done
  exit "$code"
}
trap Run_Exit_Commands EXIT
trap 'exit 130' INT
trap 'exit 143' TERM HUP

Wait_For() {
  local deadline=$((SECONDS + $1))
  shift
  until "$@"; do
    [ "$SECONDS" -lt "$deadline" ] || return 1
    sleep 0.1
  done
}
