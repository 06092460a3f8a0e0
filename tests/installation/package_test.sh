#!/bin/bash
# package_test.sh CMAKE SOURCE BUILD NAME EMULATOR...: the target "package" makes BUILD/NAME.zip with all that is
# shipped and the programs, and varlo-cli.exe, run by EMULATOR, builds the demo store in a folder it was unpacked to.
set -u
cmake=$1 source=$2 build=$3 name=$4
shift 4
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}

rm -f "$build/$name.zip"
"$cmake" --build "$build" --target package >log 2>&1 || { cat log >&2; exit 1; }
"$cmake" -E tar xf "$build/$name.zip" || fail "the archive cannot be unpacked"
[ "$(ls -A)" = "$(printf 'log\n%s' "$name")" ] || fail "the archive holds more than the folder $name"

# What is shipped, as it is, without what a build or the program makes of it there.
shipped() { (cd "$1" && find . -type f ! -path './Projects/*/Web/*' ! -path './Projects/*/Backup/*' ! -path ./config.ini | sort); }
shipped "$source/installation" >wanted
printf './%s\n' LICENSE.txt config.ini varlo-cli.exe varlo.exe >>wanted
sort -o wanted wanted
(cd "$name" && find . -type f | sort) >held
diff wanted held || fail "the archive does not hold what it should"
while IFS= read -r file; do
  cmp "$source/installation/$file" "$name/$file" || fail "$file is not as it is shipped"
done < <(shipped "$source/installation")
for program in varlo varlo-cli; do
  [ "$(head -c 2 "$name/$program.exe")" = MZ ] || fail "$program.exe is no program for Windows"
done
cmp "$source/LICENSE" "$name/LICENSE.txt" || fail "the licence is not the licence"
# No path of the machine that made it, so that the folder runs anywhere.
[ "$(cat "$name/config.ini")" = 'file=Projects\Demo\Demo.stp' ] || fail "the settings do not name the demo project"

mv "$name" 'moved away'
"$@" 'moved away/varlo-cli.exe' --install 'moved away' build Projects/Demo/Demo.stp >out 2>&1 </dev/null ||
  { fail "the demo store was not built"; cat out >&2; }
[ -s 'moved away/Projects/Demo/Web/index.html' ] || fail "the store has no front door"

[ "$failures" -eq 0 ] && echo "the package is complete"
exit $((failures > 0))
