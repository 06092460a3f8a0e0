#!/usr/bin/env bash
# first_settings.sh INSTALLATION: writes the settings that the desktop program starts with under Wine, unless there
# are some already: the demo project, and this machine's own browser. INSTALLATION holds open_browser.sh.
# "INSTALLATION.place", beside the folder, remembers where it lies: when it is found to have been moved or copied, what
# the settings name in it is named at the new place.
set -euo pipefail
export LC_ALL=C
installation=$(readlink -e "$1")
settings=$installation/config.ini
place=$installation.place

# Files of the program are in the Windows character set; it could not run in a folder that has no name in that.
windows=$(printf '%s' "Z:$installation" | tr / '\\' | iconv -f UTF-8 -t WINDOWS-1252) || {
  echo "The path $installation has characters that Windows programs cannot name." >&2
  exit 1
}

first_settings() {
  printf 'browser=%s\\open_browser.sh\n' "$windows"
  printf 'file=%s\\Projects\\Demo\\Demo.stp\n' "$windows"
}
# moved_settings OLD: the settings there are, with this place instead of the old one.
moved_settings() {
  local line
  while IFS= read -r line || [[ -n $line ]]; do
    [[ ${line#*=} != "$1"\\* ]] || line=${line%%=*}=$windows\\${line#*="$1"\\}
    printf '%s\n' "$line"
  done <"$settings"
}
# write COMMAND...: its output becomes the settings.
write() {
  "$@" >"$settings.new"
  mv "$settings.new" "$settings"
}

if [[ ! -e $settings ]]; then
  write first_settings
elif [[ -e $place && $(<"$place") != "$windows" ]]; then
  write moved_settings "$(<"$place")"
fi
printf '%s\n' "$windows" >"$place"
