#!/bin/bash
# assemble_test.sh ASSEMBLE: an installation is made, renewed, and never loses what its owner changed.
set -u
assemble=$(readlink -e "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}
# run [KEPT...]: assembles; exactly these units are told as kept.
run() {
  "$assemble" shipped target program >out 2>err || fail "assemble ended with status $?: $(cat err)"
  [ "$(cat out)" = "$(for unit in "$@"; do echo "kept as it was changed: $unit"; done)" ] || fail "kept '$(cat out)', not '$*'"
}
holds() { [ "$(cat "$1" 2>/dev/null)" = "$2" ] || fail "$1 does not hold '$2'"; }

mkdir -p shipped/img shipped/Projects/One/Template shipped/Projects/Two
echo 1 | tee shipped/list.dat shipped/img/a.gif shipped/old.dat shipped/Projects/One/One.stp \
  'shipped/Projects/One/Template/a page.htm' shipped/Projects/Two/Two.stp shipped/Projects/Two/gone.htm >program

run
diff -r shipped target >out && fail "the program is not in the installation"
holds out 'Only in target: program'

# What a build and the program write is nobody's change; a renewed file arrives, one not shipped any more goes.
mkdir -p target/Projects/One/Web target/Projects/One/Backup target/Projects/Mine
echo page | tee target/Projects/One/Web/1.htm target/Projects/One/Backup/One.001 target/Projects/Mine/Mine.stp >target/config.ini
echo 2 | tee shipped/list.dat shipped/Projects/One/One.stp program >/dev/null
rm shipped/old.dat shipped/Projects/Two/gone.htm
echo new >shipped/Projects/Two/new.htm
run
holds target/list.dat 2
holds target/program 2
holds target/Projects/One/One.stp 2
holds target/Projects/One/Web/1.htm page
holds target/Projects/Two/new.htm new
holds target/config.ini page
holds target/Projects/Mine/Mine.stp page
[ ! -e target/old.dat ] || fail "a file that is not shipped any more is still there"
[ ! -e target/Projects/Two/gone.htm ] || fail "a project's file that is not shipped any more is still there"

# Changed by the owner: kept, a project as a whole, also the next time.
echo mine | tee target/list.dat >'target/Projects/One/Template/a page.htm'
echo 3 | tee shipped/list.dat shipped/img/a.gif shipped/Projects/One/One.stp shipped/Projects/Two/Two.stp >/dev/null
for again in 1 2; do
  run Projects/One list.dat
  holds target/list.dat mine
  holds 'target/Projects/One/Template/a page.htm' mine
  holds target/Projects/One/One.stp 2
  holds target/Projects/Two/Two.stp 3
  holds target/img/a.gif 3
done

# A page that the owner added, or took out, changes a project as well.
echo 1 >'target/Projects/One/Template/a page.htm'
rm target/list.dat
touch target/Projects/Two/added.htm
run Projects/Two
holds target/list.dat 3
holds target/Projects/One/One.stp 3
rm target/Projects/Two/added.htm target/Projects/Two/new.htm
run Projects/Two
[ ! -e target/Projects/Two/new.htm ] || fail "a file that the owner took out of a project came back"
rm -r target/Projects/Two
run
diff -r shipped/Projects/Two target/Projects/Two || fail "a project that was taken away did not come back"

# An installation of unknown origin: nothing in it that differs is overwritten.
rm target.shipped
echo other >target/Projects/One/One.stp
run Projects/One
holds target/Projects/One/One.stp other

[ "$failures" -eq 0 ] && echo "an installation is assembled"
exit $((failures > 0))
