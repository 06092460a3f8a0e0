#!/bin/bash
# icons_test.sh RESOURCES: the bitmap strips that are linked into the desktop program have the form that its image
# lists take, and every picture in them shows something.
set -u
cd "$1" || exit 2
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}
number() { od -A n -t d4 -j "$2" -N 4 "$1" | tr -d ' '; }

# strip FILE PICTURES SIZE
strip() {
  [ "$(head -c 2 "$1")" = BM ] || fail "$1 is no bitmap"
  [ "$(number "$1" 18)x$(number "$1" 22)" = "$(($2 * $3))x$3" ] || fail "$1 does not hold $2 pictures of $3"
  # One plane of 24 bits, not compressed, with its pixels behind the header of version 3.
  [ "$(number "$1" 10) $(number "$1" 14) $(number "$1" 26) $(number "$1" 30)" = "54 40 $((24 * 65536 + 1)) 0" ] ||
    fail "$1 is not of the kind that all versions of Windows take"
  # Each pixel is a word "bbggrr"; ff00ff is the mask.
  od -A n -v -t x1 -w3 -j 54 "$1" | awk -v pictures="$2" -v size="$3" '
    { picture = int((NR - 1) % (pictures * size) / size); if ($0 == " ff 00 ff") mask[picture]++; else seen[picture]++ }
    END { for (i = 0; i < pictures; i++) if (mask[i] == 0 || seen[i] < size * size / 5) { print i; wrong = 1 } exit wrong }' ||
    fail "these pictures of $1 are empty, or cover all that is behind them"
}
for scale in ':16' '_24:24' '_32:32'; do
  strip "toolbar${scale%:*}.bmp" 12 "${scale#*:}"
  strip "items${scale%:*}.bmp" 31 "${scale#*:}"
done

# The program's own icon: reserved, kind 1, five sizes; a width of 0 is 256.
[ "$(od -A n -t d2 -N 6 varlo.ico | tr -s ' ')" = ' 0 1 5' ] || fail "varlo.ico does not hold five pictures"
widths=$(for entry in 0 1 2 3 4; do od -A n -t u1 -j $((6 + 16 * entry)) -N 1 varlo.ico; done | tr -d ' ' | tr '\n' ' ')
[ "$widths" = '16 24 32 48 0 ' ] || fail "varlo.ico has the widths $widths"

[ "$failures" -eq 0 ] && echo "the icons have their form"
exit $((failures > 0))
