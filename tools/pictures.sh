#!/usr/bin/env bash
# pictures.sh [check]: retakes all pictures of the guide in docs/ from the running program, under Wine on a virtual
# display, in a minute. Installs missing packages. Look at the pictures before you commit them.
# "check" leaves docs/ as it is and fails if a new picture differs from the one there. build/pictures has the new ones,
# before their colours are reduced to 256, which spreads the change of a few pixels over many.
set -euo pipefail
# shellcheck source=/dev/null
. "$(dirname "${BASH_SOURCE[0]}")/desktop.sh"

check=${1:-}
[[ $# -le 1 && $check =~ ^(check)?$ ]] || Fail "usage: tools/pictures.sh [check]" 2
out=$PROJECT/build/pictures
Desktop_Prepare "$out"
Desktop_Draws_Pictures || Fail "The guide's pictures need the 32-bit Wine 8"
Desktop_Build "$out/build.log" vellatro shell_standin pictures
Display_Start 1280x1024x24
Wine_Prefix "$out/prefix"
convert packs/Default/9.jpg "$out/wallpaper.bmp" # instead of the stand-in's
# The caret in the editor does not blink.
Wine_Registry <<REG
[HKEY_CURRENT_USER\\Control Panel\\Desktop]
"Wallpaper"="$(Wine_Path "$out/wallpaper.bmp" | sed 's/\\/\\\\/g')"
"CursorBlinkRate"="1000000"
REG
Desktop_Start "$BINARIES/tests/desktop/shell_standin.exe" 96 vellatro 1280x720 --adopt # the pack's aspect ratio
WINE_OUT=$out/pictures.log
VT_PACK=$(Wine_Path packs/Default)
export VT_PACK
Desktop_Drive "$out" 300 pictures || {
  tail -n 40 "$WINE_OUT" >&2
  Fail "Taking the pictures failed; see $WINE_OUT"
}

while read -r name part; do
  convert "$out/tests/$name.bmp" -crop "$part" +repage "$out/$name.png"
done < <(tr -d '\r' <"$WINE_OUT" | sed -n 's/^picture //p')
convert "$out"/menus-?.png -background white -splice 10x0 +append -chop 10x0 "$out/menus.png"
rm "$out"/menus-?.png
convert "$out/theme.png" -resize 960x "$out/theme.png"
mkdir "$out/docs"
for picture in "$out"/*.png; do
  convert "$picture" -strip -colors 256 "png8:$out/docs/${picture##*/}"
done
if [ -z "$check" ]; then
  mv "$out"/docs/*.png docs/
  identify -format '%f %wx%h %b\n' docs/*.png
  exit
fi
differ=$(for picture in docs/*.png; do
  compare -metric AE "$picture" "$out/$picture" null: 2>/dev/null || echo "${picture#docs/}"
done)
[ "$(cd docs && echo *.png)" = "$(cd "$out/docs" && echo *.png)" ] || differ+=" (the names differ)"
[ -z "$differ" ] || Fail "These pictures of the guide no longer show the program: ${differ//$'\n'/ }. See $out. If the \
program should look so now, run tools/pictures.sh and look at the pictures; other fonts also change them"
