# shellcheck shell=bash
# Provides a Wine for the scripts. Source it after common.sh and packages.sh, and call its functions from the script
# itself, not from a subshell. Nothing that they start outlives the script.
#
#   Wine_Setup                  chooses and installs a Wine: sets WINE_KIND (package32, root32, wine10, wine64) and
#                               WINE_PRESET (win32, win64). VELLATRO_WINE in the environment forces a kind.
#   Wine_Prefix DIR [keep]      creates a fresh prefix in DIR (in /tmp or in the project) for all calls that follow;
#                               "keep" keeps an existing one with the files that programs have written to it
#   Wine_Run SECONDS [NAME=VALUE...] EXE [ARGUMENT...]    waits; returns the exit code, 124 after SECONDS
#   Wine_Start SECONDS [NAME=VALUE...] EXE [ARGUMENT...]  does not wait; sets WINE_JOB for "wait"
#       Both take EXE as one of Wine's own ("regedit") or as a path, run it in the current folder, set the variables
#       for this program only (LD_PRELOAD), and append its output to WINE_OUT (default: output.log in the prefix).
#   Wine_Registry <FILE         imports the lines of a .reg file, without its header
#   Wine_Path FILE              prints the path of FILE for Windows programs: Z:\...
#   Wine_Pids NAME.exe          prints the host's process ids of that program in this prefix
#   Wine_End                    ends all programs in the prefix, as the script's exit does
#
# The kinds, in order of preference, because the product is a 32-bit program:
#   package32  Debian's wine32 through the foreign architecture i386
#   root32     a private i386 Debian in CACHE, entered in its own namespaces, so that neither mounts nor processes are
#              left on the host; only if apt cannot install wine32, and only as root
#   wine64     the 64-bit Wine and the 64-bit build
# A kind that only VELLATRO_WINE chooses:
#   wine10     like root32, with the Wine of the next Debian release, to run the product and its tests on another one

wine_root=$CACHE/i386
wine_release=bookworm # the Debian release in the root
wine_bed=

Wine_Setup() {
  WINE_KIND=${VELLATRO_WINE:-}
  if [ "$WINE_KIND" = wine10 ]; then
    wine_root=$CACHE/i386-trixie
    wine_release=trixie
  fi
  case $WINE_KIND in
    '') Wine_Choose ;;
    package32) Wine_Has_Package32 || Wine_Install_Package32 || Fail "Cannot install wine32" ;;
    root32 | wine10) Wine_Has_Root32 || Wine_Install_Root32 || Fail "Cannot create the i386 root" ;;
    wine64) ;;
    *) Fail "VELLATRO_WINE must be package32, root32, wine10 or wine64" 2 ;;
  esac
  case $WINE_KIND in
    package32) WINE_PRESET=win32 && Say "Wine: 32 bit, from the package wine32" ;;
    root32 | wine10) WINE_PRESET=win32 && Say "Wine: 32 bit, from the i386 root $wine_root" ;;
    wine64) WINE_PRESET=win64 && Say "Wine: 64 bit, with the 64-bit build" ;;
  esac
  export WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml,winemenubuilder.exe=' LC_ALL=C.UTF-8
  export WINEARCH=$WINE_PRESET FONTCONFIG_FILE=$PROJECT/tools/fonts.conf
  unset WINEPREFIX WINELOADER WINESERVER
  case $WINE_KIND in root32 | wine10) Wine_Enter_Root32 ;; esac
}

Wine_Choose() {
  if Wine_Has_Package32; then
    WINE_KIND=package32
  elif Wine_Has_Root32; then
    WINE_KIND=root32
  elif Wine_Install_Package32; then
    WINE_KIND=package32
  elif Wine_Install_Root32; then
    WINE_KIND=root32
  else
    WINE_KIND=wine64
  fi
}

Wine_Has_Package32() { [ -x /usr/lib/wine/wine ] && [ -x /usr/lib/wine/wineserver64 ]; }

# Some containers forbid namespaces even to root.
Wine_May_Root32() { [ "$(id -u)" = 0 ] && unshare --mount --pid --fork true 2>/dev/null; }

Wine_Has_Root32() { Wine_May_Root32 && [ -e "$wine_root.complete" ] && [ -x "$wine_root/usr/lib/wine/wine" ]; }

# Simulates the installation first: at times the i386 lists do not match the amd64 ones. After a failure, removes the
# architecture again, because it would make every later apt-get update fail, and does not retry for a day.
Wine_Install_Package32() {
  local refused=$CACHE/wine32.refused plan added=
  Apt_Allowed || return 1
  [ "$(dpkg --print-architecture)" = amd64 ] || return 1
  [ -z "$(find "$refused" -mtime -1 2>/dev/null)" ] || return 1
  Say "Trying to install wine32"
  if ! dpkg --print-foreign-architectures | grep -qx i386; then
    added=yes
    As_Root dpkg --add-architecture i386
    At_Exit Wine_Drop_I386
  fi
  if Apt update >/dev/null 2>&1 && plan=$(Apt install -s --no-install-recommends wine32:i386 2>/dev/null) &&
    ! grep -q '^Remv' <<<"$plan" && Apt_Install wine32:i386; then
    return 0
  fi
  [ -z "$added" ] || Wine_Drop_I386
  mkdir -p "$CACHE" && touch "$refused"
  Say "Cannot install wine32 here. The next attempt is in a day at the earliest"
  return 1
}

# Also called at the script's exit, in case someone interrupts the attempt.
Wine_Drop_I386() {
  if Wine_Has_Package32 || ! dpkg --print-foreign-architectures | grep -qx i386; then return 0; fi
  As_Root dpkg --remove-architecture i386 2>/dev/null || return 0
  Apt update >/dev/null 2>&1 || Say "apt-get update fails: the package lists may be out of date"
}

# A root without the file .complete is left from an interrupted attempt and is created again.
Wine_Install_Root32() {
  local mirror log
  Wine_May_Root32 && (Packages_Need root) || return 1
  Say "Creating an i386 Debian with Wine in $wine_root (once; about a minute)"
  rm -f "$wine_root.complete"
  rm -rf --one-file-system "$wine_root"
  mkdir -p "$CACHE"
  log=$wine_root.log
  # shellcheck disable=SC2016 # apt expands the name, not the shell
  mirror=$(apt-get indextargets --format '$(SITE)' 'Codename: bookworm' 'Component: main' \
    'Created-By: Packages' 2>/dev/null | head -n 1 || true)
  # In its own namespaces, so that an interrupted attempt leaves neither mounts nor processes.
  setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child=KILL --mount-proc timeout -k 10 1200 \
    debootstrap --arch=i386 --variant=minbase --include=wine32,wine "$wine_release" "$wine_root" ${mirror:+"$mirror"} \
    </dev/null >"$log" 2>&1 &
  if ! wait $!; then
    tail -n 20 "$log" >&2
    return 1
  fi
  rm -rf "$wine_root"/var/cache/apt/archives/*.deb
  touch "$wine_root.complete"
}

# A keeper process holds the namespaces, in which Wine's server and programs find each other. When the keeper or this
# script ends, all of them end. The keeper is bash, because it reaps orphans.
Wine_Enter_Root32() {
  local ready
  ready=$(mktemp /tmp/vellatro-bed.XXXXXX)
  # The root does not show the folder with the key to the user's display, so copy the key.
  XAUTHORITY=${XAUTHORITY:-$HOME/.Xauthority}
  if [ -r "$XAUTHORITY" ]; then
    cp "$XAUTHORITY" "$ready.key"
    export XAUTHORITY=$ready.key
  else
    unset XAUTHORITY
  fi
  # shellcheck disable=SC2016
  setpriv --pdeathsig KILL unshare --mount --pid --fork --kill-child=KILL --mount-proc="$wine_root/proc" \
    bash -ec '
      root=$1 project=$2 ready=$3
      for folder in /dev /tmp /usr/share/fonts /usr/share/wine/fonts /usr/share/fontconfig /etc/fonts "$project"; do
        [ -d "$folder" ] || continue
        mkdir -p "$root$folder"
        mount --rbind "$folder" "$root$folder"
      done
      exec chroot "$root" /bin/bash -c "echo ready >$ready; while sleep 1000; do :; done"
    ' keeper "$wine_root" "$PROJECT" "$ready" </dev/null >"$ready.log" 2>&1 &
  At_Exit Wine_Leave_Root32 $! "$ready"
  Wait_For 20 test -s "$ready" || Fail "Cannot enter the i386 root: $(cat "$ready.log")"
  wine_bed=$(pgrep -P $!)
  rm -f "$ready" "$ready.log"
}

Wine_Leave_Root32() {
  kill -KILL "$wine_bed" "$1" 2>/dev/null || true
  wait "$1" 2>/dev/null || true
  rm -f "$2" "$2.log" "$2.key"
  wine_bed=
}

# Runs a command where Wine is: on the host, or in the i386 root. In the root, runs it in "/" if the root does not
# show the current folder.
Wine_Inside() {
  local folder
  if [ -z "$wine_bed" ]; then
    "$@"
    return
  fi
  folder=$(pwd -P)
  case $folder/ in
    /tmp/* | "$PROJECT"/*) ;;
    *) folder=/ ;;
  esac
  nsenter --target "$wine_bed" --mount --pid --root -- env -C "$folder" "$@"
}

Wine_Start() {
  local seconds=$1 variables=()
  shift
  while [[ $1 =~ ^[A-Za-z_][A-Za-z_0-9]*= ]]; do
    variables+=("$1")
    shift
  done
  Wine_Inside timeout -k 5 "$seconds" env "${variables[@]}" wine "$@" \
    </dev/null >>"${WINE_OUT:-$WINEPREFIX/output.log}" 2>&1 &
  WINE_JOB=$!
}

# Runs in the background and waits, so that a signal to the script takes effect at once.
Wine_Run() {
  Wine_Start "$@"
  wait "$WINE_JOB"
}

Wine_Path() {
  local path
  path=$(realpath -m "$1")
  printf 'Z:%s\n' "${path//\//\\}"
}

Wine_Registry() {
  local file
  file=$(mktemp /tmp/vellatro-reg.XXXXXX)
  { printf 'Windows Registry Editor Version 5.00\n\n' && cat; } >"$file"
  Wine_Run 60 regedit /S "$(Wine_Path "$file")" || Fail "Cannot change the registry of $WINEPREFIX"
  rm -f "$file"
}

Wine_Pids() {
  local pid
  for pid in $(pgrep -x "${1:0:15}"); do
    if grep -qzx "WINEPREFIX=$WINEPREFIX" "/proc/$pid/environ" 2>/dev/null; then echo "$pid"; fi
  done
}

# Copies a prefix template, which takes a fifth of the time of creating a prefix. There is one template for each Wine
# and registry text.
Wine_Prefix() {
  local template
  template=$CACHE/prefix-$WINE_KIND-$({ Wine_Registry_Of_Prefix && Wine_Inside stat -c %Y /usr/share/wine/wine.inf; } |
    cksum | cut -d' ' -f1)
  [ -d "$template" ] || Wine_Make_Template "$template"
  if [ "${2:-}" != keep ] || [ "$(cat "$1/template" 2>/dev/null)" != "$template" ]; then
    if [ -e "$1" ]; then
      [ -e "$1/system.reg" ] || [ -z "$(ls -A "$1")" ] || Fail "$1 exists and is not a Wine prefix"
      rm -rf "$1"
    fi
    mkdir -p "$(dirname "$1")"
    cp -a "$template" "$1"
    echo "$template" >"$1/template"
  fi
  WINEPREFIX=$(realpath "$1")
  export WINEPREFIX
  At_Exit Wine_End_Of "$WINEPREFIX"
  # Start the server now and keep it: all programs start alike then, and none becomes the server's parent.
  Wine_Inside timeout -k 5 30 wineserver -p60 </dev/null >/dev/null 2>&1 || Fail "Wine's server did not start"
}

# Creates the prefix template $1. Replaces the links to the user's own folders with folders that tests may change.
# Adds Wine's fonts, which have the glyphs of title bars and menus and are outside the i386 root; but not its Tahoma,
# whose bold is not bolder.
Wine_Make_Template() {
  local link
  Say "Creating a Wine prefix (once)"
  WINEPREFIX=$(mktemp -d /tmp/vellatro-prefix.XXXXXX)
  export WINEPREFIX
  At_Exit rm -rf "$WINEPREFIX"
  DISPLAY='' Wine_Run 120 wineboot -i || Fail "Wine cannot create a prefix: $(tail "$WINEPREFIX/output.log")"
  DISPLAY='' Wine_Registry < <(Wine_Registry_Of_Prefix)
  Wine_Inside timeout -k 5 30 wineserver -w || Fail "Wine did not finish its prefix"
  cp /usr/share/wine/fonts/{marlett,symbol,webdings,wingding,system,fixedsys}.ttf "$WINEPREFIX/drive_c/windows/Fonts/"
  while read -r link; do
    rm "$link"
    mkdir "$link"
  done < <(find "$WINEPREFIX/drive_c/users" -type l)
  rm -f "$WINEPREFIX"/output.log "$WINEPREFIX"/*/wineserver
  mkdir -p "$CACHE"
  find "$CACHE" -maxdepth 1 -name "prefix-$WINE_KIND-*" ! -name '*.*' -exec rm -rf {} +
  cp -a "$WINEPREFIX" "$1.$$"
  # Another script may have made the same template meanwhile.
  mv -T "$1.$$" "$1" 2>/dev/null || rm -rf "$1.$$"
  rm -rf "$WINEPREFIX"
}

# Smooth fonts and glyphs of all scripts, as on Windows; no dialog after a crash; no sound. The X server clips the
# windows of the shell stand-in, which would otherwise paint over the calendar that another process has put into it.
Wine_Registry_Of_Prefix() {
  local font
  cat <<'REG'
[HKEY_CURRENT_USER\Control Panel\Desktop]
"FontSmoothing"="2"
"FontSmoothingType"=dword:00000002
"FontSmoothingOrientation"=dword:00000001
"FontSmoothingGamma"=dword:00000578

[HKEY_CURRENT_USER\Software\Wine\AppDefaults\shell_standin.exe\X11 Driver]
"ClientSideGraphics"="N"

[HKEY_CURRENT_USER\Software\Wine\WineDbg]
"ShowCrashDialog"=dword:00000000

[HKEY_CURRENT_USER\Software\Wine\Drivers]
"Audio"=""

[HKEY_CURRENT_USER\Software\Wine\Fonts\Replacements]
"Tahoma"="Liberation Sans"
"Segoe UI"="Liberation Sans"
"Arial"="Liberation Sans"
"MS Sans Serif"="Liberation Sans"
"Times New Roman"="Liberation Serif"
"Courier New"="Liberation Mono"
"Verdana"="DejaVu Sans"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows NT\CurrentVersion\FontLink\SystemLink]
REG
  for font in 'Microsoft Sans Serif' 'Liberation Sans' 'Liberation Serif' 'Liberation Mono' 'DejaVu Sans'; do
    Wine_Font_Link "$font" 'NotoSansCJK-Regular.ttc,Noto Sans CJK JP'
    Wine_Font_Link "$font Bold" 'NotoSansCJK-Bold.ttc,Noto Sans CJK JP'
  done
}

# In a .reg file that is not UTF-16, a REG_MULTI_SZ value is a list of bytes.
Wine_Font_Link() {
  local bytes
  bytes=$(printf '%s\0\0' "$2" | od -An -v -tx1 | tr -d '\n' | tr ' ' ,)
  printf '"%s"=hex(7):%s\n' "$1" "${bytes#,}"
}

Wine_End_Of() {
  WINEPREFIX=$1 Wine_Inside timeout -k 5 20 wineserver -k </dev/null >/dev/null 2>&1 || true
  WINEPREFIX=$1 Wine_Inside timeout -k 5 20 wineserver -w </dev/null >/dev/null 2>&1 || true
}

Wine_End() { Wine_End_Of "$WINEPREFIX"; }
