#!/bin/bash
# moved_clone_test.sh SETUP: a clone that was built and then moved or copied is configured afresh, and one that stayed
# where it was is not.
set -u
setup=$(readlink -e "$1")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work" || exit 2
failures=0

fail() {
  failures=$((failures + 1))
  echo "FAILED: $*" >&2
}

mkdir -p one/src
echo 'cmake_minimum_required(VERSION 3.25)
project(small NONE)' >one/CMakeLists.txt
echo '{ "version": 6, "configurePresets": [ { "name": "small", "generator": "Ninja", "binaryDir": "${sourceDir}/build/small" } ] }' \
  >one/CMakePresets.json

# configures FOLDER: as ./run and ./test do there.
configures() {
  (cd "$1" && . "$setup" && configure small) >log 2>&1 || { fail "$1 is not configured"; cat log >&2; }
  grep -qx "CMAKE_HOME_DIRECTORY:INTERNAL=$work/$1" "$1/build/small/CMakeCache.txt" || fail "$1 is configured for another folder"
}

configures one
touch one/build/small/built
configures one
[ -f one/build/small/built ] || fail "a clone that stayed where it was is configured afresh"

ln -s one linked
(cd linked && . "$setup" && configure small) >log 2>&1 || fail "a clone is not configured through a link"
[ -f one/build/small/built ] || fail "a clone that is reached through a link is configured afresh"

cp -a one copied
configures copied
[ ! -f copied/build/small/built ] || fail "what was built elsewhere is left in a copy"
[ -f one/build/small/built ] || fail "the copy's original is touched"

mv one moved
touch moved/build/kept
configures moved
[ ! -f moved/build/small/built ] || fail "what was built elsewhere is left in a clone that was moved"
[ -f moved/build/kept ] || fail "more than the build folder is made anew"

[ "$failures" -eq 0 ]
