#!/bin/sh
# start_wine_at_dpi.sh CMAKE_FOLDER FOLDER DPI: makes a Wine prefix in a folder, unless it is there, whose screen has
# so many dots an inch, and starts its server.
set -eu
"$1/wine_start.sh" "$2"
. "$1/wine_environment.sh"
use_wine_of "$2"
wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$3" /f </dev/null >/dev/null 2>&1
