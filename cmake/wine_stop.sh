#!/bin/sh
# wine_stop.sh BUILD_FOLDER: ends the Wine server of a build folder, with all that runs in its prefix.
set -eu
. "$(dirname -- "$0")/wine_environment.sh"
use_wine_of "$1"
if wineserver -k0 2>/dev/null; then wineserver -k; fi
