#!/bin/bash
# installation_test.sh INSTALLATION VARLO_CLI: what is shipped beside the program is complete and obeys the
# rules of its formats. Works on the files alone; nothing is changed.
set -u
installation=$1
cli=$(readlink -f "$2")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$installation" || exit 2
export LC_ALL=C
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}
# The file that a catalogue or project names with back slashes.
named() { printf '%s' "${1//\\//}"; }

# ---- the catalogue of layouts

# One line a record: "style|scheme|slots that have a value|DEF|PREVIEW|SCF|SCF...".
schemes() {
  awk -F= '
    function flush() { if (scheme != "") print style "|" scheme "|" slots "|" set "|" preview files; scheme = "" }
    { value = substr($0, index($0, "=") + 1) }
    /^#CAT/ { inside = 1 }
    /^#BREAK/ { flush(); inside = 0 }
    /^SCHEMA=/ { flush(); if (inside) { scheme = value; slots = 0; set = preview = files = "" } else style = value }
    inside && /^DEF=/ { set = value }
    inside && /^PREVIEW=/ { preview = value }
    inside && /^SCF=/ { files = files "|" value }
    inside && /^[0-9]/ && value != "" { slots++ }
    END { flush() }' scheme.dat
}

styles=$(schemes | cut -d'|' -f1 | sort | uniq -c)
[ "$(wc -l <<<"$styles")" -ge 3 ] || fail "scheme.dat has fewer than three styles"
awk '$1 < 2 { exit 1 }' <<<"$styles" || fail "a style has a single scheme"
sets=$(schemes | cut -d'|' -f4 | sort -u)
[ "$(wc -l <<<"$sets")" -ge 3 ] || fail "styles share a template set"

while IFS='|' read -r style scheme slots set preview files; do
  [ "$slots" -eq 31 ] || fail "$style/$scheme fills $slots slots, not 31"
  [ "$(head -c 2 "$(named "$preview")" 2>/dev/null)" = BM ] || fail "$style/$scheme: '$preview' is no bitmap"
  case "|$files|" in *'|template\cart.js|'*) ;; *) fail "$style/$scheme does not bring cart.js along" ;; esac
  bases=''
  while IFS= read -r file; do
    [ -s "$(named "$file")" ] || fail "$style/$scheme: no file '$file'"
    bases="$bases ${file##*\\}"
  done < <(tr '|' '\n' <<<"$files")
  for base in h1 h2 h3 f g o a add remove back; do
    case "$bases " in *" $base.gif "*) ;; *) fail "$style/$scheme does not bring $base.gif along" ;; esac
  done
done < <(schemes)
[ "$(head -c 2 s0.bmp)" = BM ] || fail "s0.bmp is no bitmap"
# What a layout of the owner starts with.
for base in h1 h2 h3 f g o a add remove back; do
  [ -s "img/$base.gif" ] || fail "no img/$base.gif"
done

# ---- template sets

known='USER META_TITLE META_DESCRIPTION STORETITLE BODY HOMELINK HOMETITLE HEADING BUTTON_ADD BUTTON_REMOVE BUTTON_BACK
  BGCOLOR TEXT_COLOR LINK_COLOR VLINK_COLOR ALINK_COLOR MENUCOLOR CURRENCY REMOVE BUY COST CODE FREIGHT WEIGHT TAX PRICE IMAGE
  LINK FIELD1 FIELD2 FIELD3 FIELD4 FIELD5 FIELD6 LABEL1 LABEL2 LABEL3 LABEL4 LABEL5 LABEL6 TITLE _VERSION _PRODUCT FRAMECOLOR
  FRAME INDEX PRODUCT BACK COPYRIGHT CANONICAL ISO_CURRENCY'
for set in '' $sets; do
  folder=template/$set
  for page in category product shelf list order confirm; do
    [ -s "$folder/$page.htm" ] || fail "no $folder/$page.htm"
  done
  for page in order confirm; do
    cmp "template/$page.htm" "$folder/$page.htm" || fail "$folder/$page.htm is not the default form"
  done
  for page in category product shelf list; do
    file=$folder/$page.htm
    [ "$(wc -c <"$file")" -lt 100000 ] || fail "$file is too long"
    awk 'length > 19000 { exit 1 }' "$file" || fail "$file has a line that is too long"
    ! grep -q '^;' "$file" || fail "$file has a line that a build drops"
    [ "$(grep -o '<!--' "$file" | wc -l)" -eq "$(grep -o -e '-->' "$file" | wc -l)" ] || fail "$file has a comment that is not closed"
    grep -q 'charset=windows-1252' "$file" || fail "$file declares no character set"
    grep -q '<script src="cart.js"></script>' "$file" || fail "$file does not use cart.js"
    for word in $(grep -o '\$[A-Za-z0-9_]*' "$file" | sort -u); do
      grep -qw -- "${word#\$}" <<<"$known" || fail "$file has the unknown variable $word"
    done
    case $page in
      shelf | list) [ "$(grep -cE '^</?SHELF>$' "$file")" -eq 2 ] || fail "$file has no shelf block" ;;
    esac
  done
done

# ---- lists

awk 'NF < 2 { exit 1 }' domain.dat || fail "domain.dat has a line without a name"
[ -z "$(cut -d' ' -f1 domain.dat | sort | uniq -d)" ] || fail "domain.dat has a code twice"
[ "$(grep -c '^[A-Z][A-Z] ' domain.dat)" -eq "$(wc -l <domain.dat)" ] || fail "domain.dat has a code that is not two letters"
[ "$(grep -vc -e '^;' cc.dat)" -ge 3 ] || fail "cc.dat has hardly any cards"
grep -qx 'ORDER=[0-9]*' version.ini && grep -qx 'CONFIRM=[0-9]*' version.ini || fail "version.ini lacks a version"
grep -qx 'server=.*\.example' server.ini || fail "server.ini names no order server, or a real one"

# ---- demo projects

for project in Demo Bookshop; do
  folder=Projects/$project
  file=$folder/$project.stp
  # As the program would save it at the same moment.
  SOURCE_DATE_EPOCH=$(sed -n 's/^TIME=//p;q' "$file") "$cli" --install . resave "$file" --output "$work/$project.stp" ||
    fail "$file cannot be loaded"
  cmp "$file" "$work/$project.stp" || fail "$file is not as the program saves it"
  layout=$(sed -n 's/^LAYOUT=//p' "$file")
  set=$(schemes | awk -F'|' -v layout="$layout" '$1 "/" $2 == layout { print $4 }')
  [ -n "$set" ] || fail "$file has the unknown layout '$layout'"
  for page in category product shelf list order confirm; do
    cmp "template/$set/$page.htm" "$folder/Template/$page.htm" || fail "$folder/Template is not the set of its layout"
  done
  while IFS= read -r picture; do
    [ -s "$picture" ] || fail "$file: no picture '$picture'"
  done < <(sed -n 's/^IMAGE=//p; s/^LINK=//p' "$file")
  # Of every region, the code must be known: its name is not in the file.
  while IFS= read -r code; do
    grep -q "^$code " domain.dat || fail "$file: domain.dat does not know region '$code'"
  done < <(sed -n 's/^\$\([A-Z]*\)[012],.*/\1/p' "$file" | sort -u)
  grep '^CODE=.' "$file" | sort | uniq -d | grep -q . && fail "$file has a product code twice"
  [ "$(grep -c '^NODE1' "$file")" -eq "$(grep -c '^CODE=.' "$file")" ] || fail "$file has a product without a code"
  awk 'length > 3000 { exit 1 }' "$file" || fail "$file has a line that a save would cut"
done

[ "$failures" -eq 0 ] && echo "the installation is complete"
exit $((failures > 0))
