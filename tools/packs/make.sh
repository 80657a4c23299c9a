#!/usr/bin/env bash
# Paints the theme pack "Default" anew: make.sh [FOLDER]. Needs a C++20 compiler and ImageMagick's `convert`; the same
# tools give the same pictures, since nothing in them is left to chance. Quality falls until a picture is small enough.
set -euo pipefail
cd "$(dirname "$0")/../.."
folder=${1:-packs/Default}
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
  mv "$work/$1.jpg" "$folder/$1.jpg"
  echo "$1.jpg: $(stat -c %s "$folder/$1.jpg") bytes, quality $quality"
}
export -f Paint_Month
export work folder largest
seq 12 | xargs -P "$(nproc)" -I{} bash -euc 'Paint_Month {}'
