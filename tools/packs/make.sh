#!/usr/bin/env bash
# Paints the theme pack "Default" anew: make.sh [FOLDER [MONTH...]]. Needs a C++20 compiler and ImageMagick's `convert`;
# the same tools give the same pictures, for nothing in them is left to chance. The quality falls until a picture is
# small enough. A month takes up to 20 seconds.
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=${1:-packs/Default}
shift || true
[ $# -gt 0 ] || set -- {1..12}
work=build/packs
largest=300000 # bytes a picture

mkdir -p "$work" "$folder"
"${CXX:-g++}" -std=c++20 -O2 -ffp-contract=off -Wall -Wextra -Wshadow -Wconversion -Wold-style-cast -Werror -I. \
  tools/packs/*.cpp -o "$work/paint"

Paint_Month() {
  "$work/paint" "$1" 2 "$work/$1.ppm"
  for quality in $(seq 92 -2 60); do
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
printf '%s\n' "$@" | xargs -P "$(nproc)" -I{} bash -euc 'Paint_Month {}'
