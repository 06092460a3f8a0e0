#!/bin/sh
# wine.sh PROGRAM [ARGUMENT...]: runs a Windows program under Wine, in the prefix of the build folder
# that the program lies in. A program of Wine itself, such as reg, runs in that of build/windows.
set -eu
here=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)
. "$here/wine_environment.sh"

# The build folder around a path; a trial program of the configuration lies in the same one.
build_folder_of() {
  folder=$(CDPATH='' cd -- "$(dirname -- "$1")" && pwd)
  folder=${folder%%/CMakeFiles/*}
  while [ -n "$folder" ] && [ ! -f "$folder/CMakeCache.txt" ]; do folder=${folder%/*}; done
  echo "${folder:-${here%/*}/build/windows}"
}

[ $# -gt 0 ] || { echo "usage: wine.sh PROGRAM [ARGUMENT...]" >&2; exit 2; }
build=$(build_folder_of "$1")
use_wine_of "$build"
if [ ! -f "$WINEPREFIX/ready" ] || ! wineserver -k0 2>/dev/null; then "$here/wine_start.sh" "$build"; fi
exec wine "$@"
