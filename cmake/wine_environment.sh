# Sourced by the other wine*.sh: the surroundings in which Wine behaves the same on every machine.

# use_wine_of BUILD_FOLDER: Wine with the prefix that lies in this build folder.
use_wine_of() {
  if ! command -v wine >/dev/null; then
    echo "Wine is missing: install the Debian packages wine and wine64." >&2
    exit 127
  fi
  mkdir -p -- "$1"
  WINEPREFIX=$(CDPATH='' cd -- "$1" && pwd)/wine
  WINEARCH=win64
  WINEDEBUG=-all
  # In the plain C locale, Wine cannot make a file with a byte above 0x7F in its name.
  LC_ALL=C.UTF-8
  # No .NET, no HTML engine, and no entries in the menus of the user's own desktop.
  WINEDLLOVERRIDES='mscoree,mshtml=;winemenubuilder.exe=d'
  export WINEPREFIX WINEARCH WINEDEBUG LC_ALL WINEDLLOVERRIDES
}
