#!/usr/bin/env bash
# Checks the program, the native benchmarks and the fuzz targets with clang-tidy, by the settings of .clang-tidy; not
# the tests and the painter of the wallpapers. The headers of the language and of Windows take most of the time, so all
# sources of a folder are checked as one file; those whose names collide go into a further file. The flags are those of
# the presets host and win32, as far as clang knows them, and for win32 also MinGW's headers. Builds nothing. Usage:
# tools/tidy.sh [FOLDER_OR_SOURCE...], without arguments all.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/packages.sh"
Packages_Need build
mkdir -p build
out=$(mktemp -d build/tidy.XXXXXX) # inside the project, where .clang-tidy is found
At_Exit rm -rf "$out"

# Flags PRESET TARGET: prints the compile flags of the target's sources, without flags for sanitizers, for errors, which
# .clang-tidy defines, and for GCC's precompiled header, which clang cannot read.
Flags() {
  cmake --preset "$1" >/dev/null
  grep -m 1 "CMakeFiles/$2\\.dir/" "build/$1/compile_commands.json" |
    sed -E -e 's/^ *"command": "[^ ]* //' -e 's/ -o .*//' \
      -e 's/ (-x c\+\+-header|-include [^ ]*)//g' -e 's/-(W(error|no-restrict|invalid-pch)|f(no-)?sanitize|flto)[^ ]*//g'
}
host=$(Flags host vellatro_portable)
win32="--target=i686-w64-mingw32 -nostdinc++ $(Flags win32 vellatro)"
# MinGW's folders for the headers of the language and of the system. The compiler's own headers are clang's.
while read -r folder; do
  case $folder in
    */c++* | */i686-w64-mingw32/include) win32+=" -isystem $(realpath "$folder")" ;;
  esac
done < <(i686-w64-mingw32-g++-win32 -E -x c++ -v /dev/null 2>&1 | grep '^ /')

# In a combined file the sources shadow each other's names; the build checks shadowing. With more nodes per procedure
# the analyser takes five times as long, and it found nothing else in core/ and settings/.
less='-Wno-shadow -Xclang -analyzer-config -Xclang max-nodes=20000'

# Write_Whole FILE SOURCE...: writes the sources into one file.
Write_Whole() {
  local source whole=$1
  shift
  for source; do printf '#line 1 "%s"\n' "$source" && cat "$source"; done >"$whole"
}

# Name_Sources WHOLE: replaces the positions in the combined file by those in the sources, in clang-tidy's output.
Name_Sources() {
  awk -v whole="$1" '
    FNR == NR { if (/^#line 1 "/) { split($0, word, "\""); source = word[2]; before = FNR }
                name[FNR] = source; line[FNR] = FNR - before; next }
    /^[0-9]+ warnings generated\.$/ { next }
    (at = index($0, whole ":")) { rest = substr($0, at + length(whole) + 1); number = rest + 0
                                  sub(/^[0-9]+/, "", rest); $0 = name[number] ":" line[number] rest }
    { print }' "$1" -
}

# Tidy FOLDER_OR_SOURCE: checks a folder. A source must not declare a name that another one in the same file declares.
# So the sources with compile errors wait for the next round, until there are no errors or one source is left, which is
# checked in any case.
Tidy() {
  local place=$1 flags=$host checks='' round=0 code=0 sources=("$1") found kept whole
  [ ! -d "$place" ] || sources=("$place"/*.cpp)
  case $place in win32* | app | tests/desktop | bench/desktop) flags=$win32 ;; esac
  case $place in bench*) checks=-clang-analyzer-deadcode.DeadStores ;; esac # the loop counters
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
