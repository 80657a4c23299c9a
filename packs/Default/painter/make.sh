#!/usr/bin/env bash
# Repaints the pack's pictures: make.sh [FOLDER [MONTH...]]. See README.md in this folder.
set -euo pipefail
folder=$(realpath -m "${1:-$(dirname "$0")/..}")
cd "$(dirname "$0")"
shift || true
[ $# -gt 0 ] || set -- {1..12}
work=../../../build/packs
largest=560000 # bytes per picture, so that the program's archive stays under 8 MB

mkdir -p "$work" "$folder"
"${CXX:-g++}" -std=c++20 -O2 -ffp-contract=off -Wall -Wextra -Wshadow -Wconversion -Wold-style-cast -Werror \
  ./*.cpp -o "$work/paint"

Paint_Month() {
  "$work/paint" "$1" 2 "$work/$1.ppm"
  for quality in $(seq 95 -1 60); do
    convert "$work/$1.ppm" -strip -interlace none -sampling-factor 4:2:0 -quality "$quality" "$work/$1.jpg"
    [ "$(stat -c %s "$work/$1.jpg")" -ge "$largest" ] || break
  done
  rm "$work/$1.ppm"
  [ "$(stat -c %s "$work/$1.jpg")" -lt "$largest" ] || { echo "$1.jpg stays too large" >&2; return 1; }
  mv "$work/$1.jpg" "$folder/$1.jpg"
  echo "$1.jpg: $(stat -c %s "$folder/$1.jpg") bytes, quality $quality"
}
export -f Paint_Month
export work folder largest
printf '%s\n' "$@" | xargs -P "${JOBS:-$(nproc)}" -I{} bash -euc 'Paint_Month {}'
