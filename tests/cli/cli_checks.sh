# Sourced by the tests of varlo-cli with its command as arguments: a folder of its own to work in, and the checks.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
export SOURCE_DATE_EPOCH=1044072306
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $1" >&2
  sed 's/^/  | /' out err >&2
}
# run STATUS ARGUMENT...: the program with these arguments must exit with this status.
run() {
  expected=$1
  shift
  "$cli" "$@" >out 2>err </dev/null
  status=$?
  [ "$status" -eq "$expected" ] || fail "varlo-cli $* gave $status, not $expected"
}
shows() { grep -qF -- "$1" out || fail "output lacks: $1"; }
tells() { grep -qF -- "$1" err || fail "messages lack: $1"; }
holds() { grep -qxF -- "$2" "$1" || { cp "$1" out; fail "$1 lacks the line: $2"; }; }
same() { cmp -s "$1" "$2" || fail "$1 and $2 differ"; }
# ends WORDS: the result of the test.
ends() {
  [ "$failures" -eq 0 ] && echo "$1"
  [ "$failures" -eq 0 ]
}

# One command of several words becomes one program.
printf '#!/bin/sh\nexec "%s" ' "$1" >start
shift
for word in "$@"; do printf '"%s" ' "$word" >>start; done
printf '"$@"\n' >>start
chmod +x start
cli=$work/start
