#!/bin/sh
# Shows that check_includes.sh can fail: makes small source trees with one offence each, which it must
# refuse with the right words, and trees without any, which it must accept.
set -eu
check=$(CDPATH='' cd -- "$(dirname -- "$0")" && pwd)/check_includes.sh
tree=$(mktemp -d)
trap 'rm -rf -- "$tree"' EXIT
failures=0

# include FILE LINE: the tree becomes this file, with this line, beside a header in each folder.
include() {
  rm -rf -- "${tree:?}"/*
  for folder in platform core/text core/store persist/project layout commerce/freight import generator/items shell/window win32 posix \
    cli; do
    mkdir -p "$tree/$folder"
    echo '#pragma once' >"$tree/$folder/thing.h"
  done
  mkdir -p -- "$tree/$(dirname -- "$1")"
  printf '// A comment.\n%s\n' "$2" >"$tree/$1"
}

refuses() {
  include "$1" "$2"
  if said=$("$check" "$tree") || [ "$said" != "$3" ]; then
    printf 'FAILED: %s with %s\n  expected: %s\n  got:      %s\n' "$1" "$2" "$3" "$said"
    failures=$((failures + 1))
  fi
}

accepts() {
  include "$1" "$2"
  if ! said=$("$check" "$tree"); then
    printf 'FAILED: %s with %s was refused: %s\n' "$1" "$2" "$said"
    failures=$((failures + 1))
  fi
}

# Upwards.
refuses core/text/a.cpp '#include "persist/project/thing.h"' 'core/text/a.cpp includes persist/project/thing.h: core may not use persist'
refuses persist/project/a.h '#include "shell/window/thing.h"' 'persist/project/a.h includes shell/window/thing.h: persist may not use shell'
refuses persist/project/a.h '#include "commerce/freight/thing.h"' \
  'persist/project/a.h includes commerce/freight/thing.h: persist may not use commerce'
refuses layout/a.h '#include "generator/items/thing.h"' 'layout/a.h includes generator/items/thing.h: layout may not use generator'
refuses shell/window/a.cpp '#include "win32/thing.h"' 'shell/window/a.cpp includes win32/thing.h: shell may not use win32'
refuses platform/a.h '#include "core/text/thing.h"' 'platform/a.h includes core/text/thing.h: platform may not use core'
# Sideways.
refuses import/a.cpp '#include "generator/items/thing.h"' \
  'import/a.cpp includes generator/items/thing.h: import may not use generator'
refuses layout/a.cpp '#include "commerce/freight/thing.h"' 'layout/a.cpp includes commerce/freight/thing.h: layout may not use commerce'
refuses cli/a.cpp '#include "posix/thing.h"' 'cli/a.cpp includes posix/thing.h: cli may not use posix'
# Other ways of writing the same.
refuses core/text/a.cpp '  #  include <persist/project/thing.h>' 'core/text/a.cpp includes persist/project/thing.h: core may not use persist'
refuses core/text/a.cpp '#include "../../persist/project/thing.h"' 'core/text/a.cpp includes ../../persist/project/thing.h: core may not use persist'
refuses core/text/a.cpp '#include "../../persist/project/./thing.h"' \
  'core/text/a.cpp includes ../../persist/project/./thing.h: core may not use persist'
refuses core/text/a.cpp '#include "persist/project/not_made_yet.h"' \
  'core/text/a.cpp includes persist/project/not_made_yet.h: core may not use persist'
refuses core/text/a.cpp '#include HEADER' \
  'core/text/a.cpp includes #include HEADER: the name of the header must be written out'
# The machine.
refuses core/text/a.cpp '#include <windows.h>' 'core/text/a.cpp includes windows.h: only win32 may use Windows'
refuses shell/window/a.cpp '#include <Windows.h>' 'shell/window/a.cpp includes Windows.h: only win32 may use Windows'
refuses posix/a.cpp '#include <shellapi.h>' 'posix/a.cpp includes shellapi.h: only win32 may use Windows'
refuses core/text/a.cpp '#include <unistd.h>' 'core/text/a.cpp includes unistd.h: only posix may use POSIX'
refuses cli/a.cpp '#include <sys/stat.h>' 'cli/a.cpp includes sys/stat.h: only posix may use POSIX'
refuses win32/a.cpp '#include <dirent.h>' 'win32/a.cpp includes dirent.h: only posix may use POSIX'
# Between the rooms of a folder.
refuses core/text/a.cpp '#include "core/store/thing.h"' \
  'core/text/a.cpp includes core/store/thing.h: core/text may not use core/store'
refuses shell/tabs/a.cpp '#include "shell/window/thing.h"' \
  'shell/tabs/a.cpp includes shell/window/thing.h: shell/tabs may not use shell/window'
refuses core/a.cpp '#include <string>' 'core/a.cpp lies in no room of core'
refuses core/attic/a.cpp '#include <string>' 'core/attic/a.cpp lies in no room of core'
# A folder that nobody has placed.
refuses utilities/a.cpp '#include <string>' 'utilities/a.cpp lies in no folder of the architecture'

accepts core/text/a.cpp '#include "platform/thing.h"'
accepts core/text/a.cpp '#include "core/text/thing.h"'
accepts core/store/a.cpp '#include "core/text/thing.h"'
accepts core/text/a.cpp '#include "thing.h"'
accepts core/text/a.cpp '#include <string>'
accepts core/text/a.cpp '#include <time.h>'
accepts core/text/a.cpp '// #include "shell/window/thing.h"'
accepts layout/a.cpp '#include "persist/project/thing.h"'
accepts shell/window/a.cpp '#include "generator/items/thing.h"'
accepts win32/a.cpp '#include <windows.h>'
accepts win32/a.cpp '#include "shell/window/thing.h"'
accepts posix/a.cpp '#include <sys/stat.h>'
accepts cli/a.cpp '#include <nlohmann/json.hpp>'

exit "$failures"
