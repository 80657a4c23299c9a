# shellcheck shell=bash disable=SC2034 # the lists are used by name
# Installs the Debian packages that the build and the Wine tests need, if they are missing. Sources common.sh and
# changes to the project's folder. wine.sh chooses and installs the Wine.
#
#   Packages_Need build     compilers, CMake, test and benchmark libraries, formatter, checker, and another reader of
#                           calendar files
#   Packages_Need desktop   Wine, a virtual display, its tools, fonts
#   Packages_Need root      the tool that installs a Debian of another architecture or release in a folder
#   Apt_Allowed             succeeds if this user may install packages
#   Apt_Install PACKAGE...  installs, and retries after refreshing the package lists

# shellcheck source=/dev/null
. "${BASH_SOURCE[0]%/*}/common.sh"
cd "$PROJECT" || exit

# Each line has a file or command that proves a package is installed, and the package. Checking one file is faster than
# asking the package database, so a run with nothing missing loses no time.
build_packages='
cmake                                cmake
ninja                                ninja-build
g++                                  g++
i686-w64-mingw32-g++-win32           g++-mingw-w64-i686-win32
x86_64-w64-mingw32-g++-win32         g++-mingw-w64-x86-64-win32
/usr/src/googletest/CMakeLists.txt   googletest
/usr/include/gtest/gtest.h           libgtest-dev
/usr/include/benchmark/benchmark.h   libbenchmark-dev
clang++                              clang
clang-format                         clang-format
clang-tidy                           clang-tidy
/usr/lib/python3/dist-packages/icalendar                 python3-icalendar
/usr/lib/python3/dist-packages/recurring_ical_events.py  python3-recurring-ical-events'
desktop_packages='
Xvfb                                 xvfb
xdotool                              xdotool
/usr/bin/import                      imagemagick
xdpyinfo                             x11-utils
/usr/share/i18n/locales/th_TH        locales
wine                                 wine
/usr/lib/wine/wineserver64           wine64
/usr/share/wine/fonts/marlett.ttf    fonts-wine
/usr/share/fonts/truetype/liberation fonts-liberation
/usr/share/fonts/truetype/dejavu     fonts-dejavu-core
/usr/share/fonts/opentype/noto       fonts-noto-cjk'
root_packages='
/usr/sbin/debootstrap                debootstrap'

As_Root() {
  if [ "$(id -u)" = 0 ]; then "$@"; else sudo -n "$@"; fi
}

Apt_Allowed() {
  command -v apt-get >/dev/null && { [ "$(id -u)" = 0 ] || sudo -n true 2>/dev/null; }
}

# Waits for the lock of another installation. The caller shows the log only after a failure.
Apt() {
  As_Root env DEBIAN_FRONTEND=noninteractive timeout -k 10 900 \
    apt-get -qq -y -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 "$@" </dev/null
}

Apt_Install() {
  local log try
  log=$(mktemp)
  for try in 1 2 3; do
    if Apt install --no-install-recommends "$@" >>"$log" 2>&1; then
      rm -f "$log"
      return 0
    fi
    [ "$try" = 3 ] || { sleep 2; Apt update >>"$log" 2>&1 || true; }
  done
  cat "$log" >&2
  rm -f "$log"
  return 1
}

Packages_Need() {
  local list=$1_packages sign package missing=()
  while read -r sign package; do
    case $sign in
      '') continue ;;
      /*) [ -e "$sign" ] || missing+=("$package") ;;
      *) command -v "$sign" >/dev/null || missing+=("$package") ;;
    esac
  done <<<"${!list}"
  [ ${#missing[@]} -gt 0 ] || return 0
  Apt_Allowed || Fail "These packages are missing and this user may not install them: ${missing[*]}"
  Say "Installing ${missing[*]}"
  Apt_Install "${missing[@]}" || Fail "Could not install ${missing[*]}"
}
