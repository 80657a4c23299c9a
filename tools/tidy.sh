#!/usr/bin/env bash
# Looks for faults with clang-tidy, by the settings of .clang-tidy, in the program, the native benchmarks and the fuzz
# targets; the tests and the painter of the wallpapers are left out. Most of its time goes into the headers of the
# language and of Windows, so it is given the sources of a folder as one, which takes far less; those whose
# names collide make a further one. The flags are those of the presets host and win32, as far as clang knows them;
# for win32 it is shown MinGW's headers. Builds nothing. Usage: tools/tidy.sh [FOLDER_OR_SOURCE...], all without.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/packages.sh"
Packages_Need build
mkdir -p build
out=$(mktemp -d build/tidy.XXXXXX) # inside of the project, where .clang-tidy is found
At_Exit rm -rf "$out"

# Flags PRESET TARGET: what all sources of the target are compiled with. The sanitizers are not the analyser's matter,
# and .clang-tidy says what is an error; a precompiled header of GCC's is not for clang.
Flags() {
  cmake --preset "$1" >/dev/null
  grep -m 1 "CMakeFiles/$2\\.dir/" "build/$1/compile_commands.json" |
    sed -E -e 's/^ *"command": "[^ ]* //' -e 's/ -o .*//' \
      -e 's/ (-x c\+\+-header|-include [^ ]*)//g' -e 's/-(W(error|no-restrict|invalid-pch)|f(no-)?sanitize|flto)[^ ]*//g'
}
host=$(Flags host vellatro_portable)
win32="--target=i686-w64-mingw32 -nostdinc++ $(Flags win32 vellatro)"
# MinGW's folders of the language's and of the system's headers; those of the compiler itself are clang's own.
while read -r folder; do
  case $folder in
    */c++* | */i686-w64-mingw32/include) win32+=" -isystem $(realpath "$folder")" ;;
  esac
done < <(i686-w64-mingw32-g++-win32 -E -x c++ -v /dev/null 2>&1 | grep '^ /')

# Sources in one file shadow each other's names, which the build looks after, too. With more nodes than these for a
# procedure the analyser takes five times as long, and found nothing else in core/ and settings/.
less='-Wno-shadow -Xclang -analyzer-config -Xclang max-nodes=20000'

# Write_Whole FILE SOURCE...
Write_Whole() {
  local source whole=$1
  shift
  for source; do printf '#line 1 "%s"\n' "$source" && cat "$source"; done >"$whole"
}

# Name_Sources WHOLE: clang-tidy's output, with the places in the sources instead of those in the whole of them.
Name_Sources() {
  awk -v whole="$1" '
    FNR == NR { if (/^#line 1 "/) { split($0, word, "\""); source = word[2]; before = FNR }
                name[FNR] = source; line[FNR] = FNR - before; next }
    /^[0-9]+ warnings generated\.$/ { next }
    (at = index($0, whole ":")) { rest = substr($0, at + length(whole) + 1); number = rest + 0
                                  sub(/^[0-9]+/, "", rest); $0 = name[number] ":" line[number] rest }
    { print }' "$1" -
}

# Tidy FOLDER_OR_SOURCE. What a source declares must not meet the same name of another one: the sources that the
# compiler complains about are kept for the next round, until it does no more or one is left, which is checked
# whatever is wrong.
Tidy() {
  local place=$1 flags=$host checks='' round=0 code=0 sources=("$1") found kept whole
  [ ! -d "$place" ] || sources=("$place"/*.cpp)
  case $place in win32* | app | tests/desktop | bench/desktop) flags=$win32 ;; esac
  case $place in bench*) checks=-clang-analyzer-deadcode.DeadStores ;; esac # the counter of each loop
  while [ ${#sources[@]} -gt 0 ]; do
    round=$((round + 1))
    whole=$out/${place//[\/.]/-}-$round.cpp
    kept=()
    while Write_Whole "$whole" "${sources[@]}" && [ ${#sources[@]} -gt 1 ]; do
      # shellcheck disable=SC2086 # flags are words
      mapfile -t found < <(clang++ $flags -w -fsyntax-only -ferror-limit=0 "$whole" 2>&1 |
        sed -nE "s|^($place/[^/:]+\\.cpp):[0-9]+:[0-9]+: (fatal )?error: .*|\\1|p" | sort -u)
      [ ${#found[@]} -gt 0 ] || break
      [ ${#found[@]} -lt ${#sources[@]} ] || found=("${sources[@]:1}")
      kept+=("${found[@]}")
      mapfile -t sources < <(printf '%s\n' "${sources[@]}" | grep -vxFf <(printf '%s\n' "${found[@]}"))
    done
    # shellcheck disable=SC2086
    clang-tidy --quiet ${checks:+"--checks=$checks"} "$whole" -- $flags $less 2>&1 |
      Name_Sources "$whole" || code=1
    sources=("${kept[@]}")
  done
  return "$code"
}
export -f Write_Whole Name_Sources Tidy
export host win32 less out

[ $# -gt 0 ] ||
  set -- win32 settings calendar toolkit core ui transfer themes desktop editor app bench fuzz/*.cpp
# shellcheck disable=SC2016 # the inner shell expands
printf '%s\0' "$@" | xargs -0 -P "$(nproc)" -n 1 bash -c 'set -uo pipefail; Tidy "$1"' tidy
