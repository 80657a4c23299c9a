# shellcheck shell=bash disable=SC2034 # the scripts that source it use its variables
# The common base of all scripts: the project's folder, messages, and an orderly exit. Source it, do not run it. It
# installs, builds and starts nothing.
#
#   PROJECT                 the project's folder, absolute; CACHE the folder for files that outlast a run
#   Say TEXT / Fail TEXT [CODE]   prints a line on standard error; Fail then exits with CODE (default 1)
#   At_Exit COMMAND...      runs the command when the script exits for any reason, last registered first
#   Wait_For SECONDS COMMAND...   repeats COMMAND until it succeeds; returns 1 after the deadline

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

# Some versions of bash pass the trap on to subshells, so check that this is the script itself.
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
