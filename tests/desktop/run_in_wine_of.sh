#!/bin/sh
# run_in_wine_of.sh CMAKE_FOLDER FOLDER PROGRAM [ARGUMENT...]: runs a Windows program in the Wine prefix of a folder,
# rather than in that of the build.
set -eu
. "$1/wine_environment.sh"
use_wine_of "$2"
shift 2
exec wine "$@"
