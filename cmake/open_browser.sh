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
status=127
tried=
for opener in xdg-open sensible-browser x-www-browser; do
  if ! command -v "$opener" >/dev/null; then
    tried+=", $opener is not there"
    continue
  fi
  started=$SECONDS
  "$opener" "$address" </dev/null >/dev/null 2>&1 && exit 0
  status=$?
  # One that ran for a while was a browser, which somebody has closed.
  if [ $((SECONDS - started)) -ge 10 ]; then exit 0; fi
  tried+=", $opener ended with $status"
done

# Whoever started this sees it, and who started the program from its desktop finds it beside the program.
line="No browser could show '$address': ${tried#, }."
printf 'open_browser.sh: %s\n' "$line" >&2
{ printf '%s %s\n' "$(date '+%F %T')" "$line" >>"$(dirname -- "$0")/open_browser.log"; } 2>/dev/null
exit "$status"
