#!/usr/bin/env bash
# first_settings.sh INSTALLATION: writes the settings that the desktop program starts with under Wine, unless there
# are some already: the demo project, and this machine's own browser. INSTALLATION holds open_browser.sh.
set -euo pipefail
export LC_ALL=C
installation=$(readlink -e "$1")
[[ ! -e $installation/config.ini ]] || exit 0

# Files of the program are in the Windows character set; it could not run in a folder that has no name in that.
windows=$(printf '%s' "Z:$installation" | tr / '\\' | iconv -f UTF-8 -t WINDOWS-1252) || {
  echo "The path $installation has characters that Windows programs cannot name." >&2
  exit 1
}
{
  printf 'browser=%s\\open_browser.sh\n' "$windows"
  printf 'file=%s\\Projects\\Demo\\Demo.stp\n' "$windows"
} >"$installation/config.ini.new"
mv "$installation/config.ini.new" "$installation/config.ini"
