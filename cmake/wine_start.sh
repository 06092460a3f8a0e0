#!/bin/sh
# wine_start.sh BUILD_FOLDER [DRIVER]: makes the Wine prefix of a build folder, unless it is there, and starts
# its server. A prefix is made once; a new version of Wine or of this file makes it anew. DRIVER is how windows
# are shown: null, not at all, as tests want it, or x11.
#
# The server, and the services that the first program starts, outlive this script and keep the output
# that they were given. If that were the pipe of a caller, the caller would wait for its end for ever.
# So all the work is done with the output in a file.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
. "$here/wine_environment.sh"
use_wine_of "$1"
driver=${2:-null}

if [ "${3-}" != redirected ]; then
  # -o: the server must not inherit the lock either.
  flock -o "$WINEPREFIX.lock" "$here/wine_start.sh" "$1" "$driver" redirected </dev/null >"$WINEPREFIX.log" 2>&1 && exit 0
  echo "Wine does not start; from $WINEPREFIX.log:" >&2
  tail -n 20 -- "$WINEPREFIX.log" >&2
  exit 1
fi

# Wine copies all its DLLs into a new prefix, 700 MB. Links to the originals do as well.
link_dlls() {
  originals=$(find /usr/lib -type d -name x86_64-windows -path '*/wine/*')
  find "$WINEPREFIX/drive_c" -type f | while IFS= read -r copy; do
    original=$originals/${copy##*/}
    if cmp -s -- "$original" "$copy"; then ln -sf -- "$original" "$copy"; fi
  done
}

# The user's folders lead to the home folder at first. Nothing shall be written there.
keep_out_of_home() {
  find "$WINEPREFIX/drive_c/users" -type l | while IFS= read -r link; do
    rm -- "$link"
    mkdir -- "$link"
  done
}

# The font of the signs in title bars, scroll bars and menus, from the package fonts-wine. Wine does not find it there.
link_signs() {
  signs=/usr/share/wine/fonts/marlett.ttf
  if [ -f "$signs" ]; then ln -sf -- "$signs" "$WINEPREFIX/drive_c/windows/Fonts/"; fi
}

make_prefix() {
  wineserver -k || true
  rm -rf -- "$WINEPREFIX"
  mkdir -- "$WINEPREFIX"
  wineserver -k || true # one that was left by a removed prefix, whose identity this one may have got
  timeout 120 wineboot -i
  wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d "$driver" /f
  # A crash gives a back trace instead of a window that waits for a click.
  wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f
  wineserver -w
  # An update would write through the links into Wine's own files.
  echo disable >"$WINEPREFIX/.update-timestamp"
  link_dlls
  keep_out_of_home
  echo "$made_by" >"$WINEPREFIX/ready"
}

made_by="$(wine --version) $(cksum <"$here/wine_start.sh") $driver"
if [ "$(cat "$WINEPREFIX/ready" 2>/dev/null)" != "$made_by" ]; then make_prefix; fi
link_signs

# A server that stays between two programs spares each the second in which its services come and go.
# It leaves by itself after five minutes without a program.
wineserver -k0 || wineserver -p300
timeout 60 wine cmd /c exit
