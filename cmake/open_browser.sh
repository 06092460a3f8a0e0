#!/bin/bash
# open_browser.sh ADDRESS: shows a page in this machine's own browser. The desktop program starts it, under Wine,
# where the page of a store is a path such as Z:\home\me\store\index.html.

# A path of Wine as Linux knows it. Wine tells where a letter case differs or a drive is not in its prefix's folder.
linux_path() {
  local drive=${1%%:*} below=${1#*:} path
  below=${below//\\//}
  path=$below
  [ "${drive,,}" = z ] || path=$WINEPREFIX/dosdevices/${drive,,}:$below
  if [ ! -e "$path" ] && command -v winepath >/dev/null; then
    path=$(winepath -u "$1" 2>/dev/null </dev/null) || path=
  fi
  printf '%s' "${path:-$below}"
}

# Wine hands over an argument with a blank as two.
address=$*
if [[ $address == [A-Za-z]:[\\/]* ]]; then address=$(linux_path "$address"); fi

# Wine's surroundings are not those of the user's desktop.
unset LC_ALL
for opener in xdg-open sensible-browser x-www-browser; do
  if command -v "$opener" >/dev/null; then exec "$opener" "$address" </dev/null >/dev/null 2>&1; fi
done
exit 127
