#!/bin/bash
# settings_test.sh FIRST_SETTINGS OPEN_BROWSER: the settings that an installation starts with, and the script that they
# name as the browser. A stand-in for xdg-open writes down what it is asked to show.
set -u
first_settings=$(readlink -e "$1")
open_browser=$(readlink -e "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}

# ---- first settings

install='my store é'
mkdir -p "$install/Projects/Demo"
windows="Z:${work//\//\\}\\my store "$'\xe9'
"$first_settings" "$install" || fail "no settings were written"
printf 'browser=%s\\open_browser.sh\nfile=%s\\Projects\\Demo\\Demo.stp\n' "$windows" "$windows" >expected
cmp expected "$install/config.ini" || fail "the first settings are not as expected"

echo 'view=1' >"$install/config.ini"
"$first_settings" "$install" || fail "settings that are there make the script fail"
[ "$(cat "$install/config.ini")" = 'view=1' ] || fail "settings that were there are not kept"

# One that was moved names its own project and browser, and leaves what lies elsewhere.
rm "$install/config.ini"
"$first_settings" "$install" || fail "no settings were written again"
printf 'last=%s-2\\a\r\nfile2=%s\\A shop.stp\r\nkey\n' "$windows" "$windows" >>"$install/config.ini"
mv "$install" moved
mv "$install.place" moved.place
new="Z:${work//\//\\}\\moved"
"$first_settings" moved || fail "the settings of a moved installation make the script fail"
printf 'browser=%s\\open_browser.sh\nfile=%s\\Projects\\Demo\\Demo.stp\nlast=%s-2\\a\r\nfile2=%s\\A shop.stp\r\nkey\n' \
  "$new" "$new" "$windows" "$new" >expected
cmp expected moved/config.ini || fail "the settings of a moved installation are not as expected"
"$first_settings" moved
cmp expected moved/config.ini || fail "the settings of an installation that stays are changed"

mkdir 'Ω'
"$first_settings" 'Ω' 2>err && fail "a folder without a name in Windows got settings"
grep -q 'cannot name' err || fail "it is not told why there are no settings"
[ -z "$(ls 'Ω')" ] || fail "settings were begun"

# ---- the browser

mkdir bin 'A site' prefix prefix/dosdevices prefix/drive_c
touch 'A site/a page.htm' 'A site/new.htm' prefix/drive_c/c.htm
ln -s ../drive_c prefix/dosdevices/c:
printf '#!/bin/sh\nprintf "%%s|" "$#" "$@" >"%s/shown"\n' "$work" >bin/xdg-open
printf '#!/bin/sh\nprintf "%%s" "/found/by/wine of $2"\n' >bin/winepath
chmod +x bin/*

# shows ADDRESS WANTED: as Wine hands it over, cut at blanks.
shows() {
  local words
  read -ra words <<<"$1"
  rm -f shown
  PATH=$work/bin:$PATH WINEPREFIX=$work/prefix "$open_browser" "${words[@]}" >out 2>&1 </dev/null || fail "'$1' ended with status $?"
  [ ! -s out ] || fail "'$1' wrote to the program's output"
  [ "$(cat shown)" = "1|$2|" ] || fail "'$1' showed '$(cat shown)', not '$2'"
}
back=${work//\//\\}
shows "Z:$back\\A site\\a page.htm" "$work/A site/a page.htm"
shows "z:$work/A site/a page.htm" "$work/A site/a page.htm"
# A back slash and a letter are no control character.
shows "Z:$back\\A site\\new.htm" "$work/A site/new.htm"
shows 'C:\c.htm' "$work/prefix/dosdevices/c:/c.htm"
# What is not there by that name is asked of Wine, which minds no letter case.
shows "Z:$back\\a SITE\\new.htm" "/found/by/wine of Z:$back\\a SITE\\new.htm"
shows 'https://varlo.example/a?b=c\new%20d&e' 'https://varlo.example/a?b=c\new%20d&e'
shows 'http://varlo.example/' 'http://varlo.example/'
shows 'mailto:shop@varlo.example?subject=A%20cup' 'mailto:shop@varlo.example?subject=A%20cup'

# Without Wine's help, the path as it can be told.
rm bin/winepath
mkdir none
ln -s "$work/bin/xdg-open" none/
PATH=$work/none "$open_browser" 'Z:\gone\page.htm' || fail "a page that is not there ended with status $?"
[ "$(cat shown)" = '1|/gone/page.htm|' ] || fail "without Wine, '$(cat shown)' was shown"
rm none/xdg-open

# From here on as it is installed, where it leaves a line beside the program when nothing works.
mkdir installed
cp "$open_browser" installed/
open_browser=$work/installed/open_browser.sh
for tool in dirname date; do ln -s "$(command -v "$tool")" none/; done
log=installed/open_browser.log

PATH=$work/none "$open_browser" 'Z:\gone\page.htm' 2>err
[ $? -eq 127 ] || fail "without a browser the status is not 127"
wanted="No browser could show '/gone/page.htm': xdg-open is not there, sensible-browser is not there, x-www-browser is not there."
[ "$(cat err)" = "open_browser.sh: $wanted" ] || fail "without a browser '$(cat err)' was told"
[ "$(cut -d' ' -f3- "$log")" = "$wanted" ] || fail "without a browser '$(cat "$log")' was noted"

# opener NAME STATUS: a stand-in that writes down its name and what it is asked to show, and ends with this status.
opener() {
  printf '#!/bin/sh\nprintf "%%s|" "%s" "$@" >>"%s/shown"\nexit %s\n' "$1" "$work" "$2" >"none/$1"
  chmod +x "none/$1"
}
# tries WANTED STATUS: what is shown by whom in the end, and the status.
tries() {
  rm -f shown err "$log"
  PATH=$work/none "$open_browser" http://varlo.example/ 2>err
  [ $? -eq "$2" ] || fail "the status is not $2"
  [ "$(cat shown)" = "$1" ] || fail "'$(cat shown)' was shown, not '$1'"
}
site='http://varlo.example/'
opener xdg-open 3
opener sensible-browser 0
opener x-www-browser 0
tries "xdg-open|$site|sensible-browser|$site|" 0
if [ -s err ] || [ -e "$log" ]; then fail "a second opener that worked was complained of"; fi
opener sensible-browser 1
tries "xdg-open|$site|sensible-browser|$site|x-www-browser|$site|" 0
opener x-www-browser 4
tries "xdg-open|$site|sensible-browser|$site|x-www-browser|$site|" 4
wanted="No browser could show '$site': xdg-open ended with 3, sensible-browser ended with 1, x-www-browser ended with 4."
[ "$(cat err)" = "open_browser.sh: $wanted" ] || fail "'$(cat err)' was told"
rm none/sensible-browser none/x-www-browser
tries "xdg-open|$site|" 3
[ "$(wc -l <"$log")" -eq 1 ] || fail "a failure is not one line of the log"

[ "$failures" -eq 0 ] && echo "the first settings are right"
exit $((failures > 0))
