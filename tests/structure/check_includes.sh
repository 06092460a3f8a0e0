#!/bin/sh
# check_includes.sh SOURCE_FOLDER: reads every #include below the folder and fails, with a line for
# each offence, where one goes against the architecture:
#   - arrows between folders, and between the rooms of a folder, point down only (the levels stand below),
#   - headers of Windows are used in win32/ only, headers of POSIX in posix/ only.
set -eu
export LC_ALL=C
cd -- "$1"
find . -type f \( -name '*.h' -o -name '*.cpp' -o -name '*.rc' \) | sed 's|^\./||' | sort | awk '
BEGIN {
  # A folder may use itself and every folder of a lower level. Neighbours of one level are strangers.
  level["platform"] = 0
  level["core"] = 1
  level["persist"] = 2
  level["layout"] = 3
  level["commerce"] = 4
  level["import"] = level["generator"] = 5
  level["shell"] = 6
  level["win32"] = level["posix"] = level["cli"] = 7

  # The rooms of a folder, from the ground up. Such a folder has no files outside of its rooms.
  rooms("core", "text forms store program tree")
  rooms("persist", "installation project life dialogs")
  rooms("commerce", "cards freight tax wizard")
  rooms("generator", "state items template pages cart build")
  rooms("shell", "text state browser tabs tree window")

  # Compared in lower case: Windows does not mind the case of a name.
  windows = "^((win|shl|ole|com|msg|dde|rich)[a-z0-9]*|windowsx|winsock2?|ws2tcpip|shellapi|prsht|dlgs|cderr" \
            "|commctrl|commdlg|objbase|unknwn|oaidl|uxtheme|versionhelpers|tchar|io|direct|conio|process" \
            "|dbghelp|psapi|tlhelp32|mmsystem|wtypes|basetsd)[.]h$"
  posix = "^((sys|net|netinet|arpa|linux|asm)/.*|(unistd|fcntl|dirent|pthread|semaphore|sched|pwd|grp|dlfcn" \
          "|termios|poll|netdb|fnmatch|glob|spawn|strings|utime|iconv|langinfo|regex|wordexp|ftw|libgen|syslog" \
          "|aio|mqueue|nl_types|monetary|cpio|tar|ulimit|utmpx|search|execinfo|getopt)[.]h)$"
}

{ files[++count] = $0; known[$0] = 1 }

function fail(file, header, why) {
  print file " includes " header ": " why
  failures++
}

function rooms(folder, names,   list, count, i) {
  count = split(names, list, " ")
  for (i = 1; i <= count; i++) room_level[folder "/" list[i]] = i
  has_rooms[folder] = 1
}

# The room in which a file lies, as "core/text"; "" where its folder has none.
function room(path,   parts) {
  if (!(top(path) in has_rooms)) return ""
  if (split(path, parts, "/") < 3) return top(path) "/"
  return parts[1] "/" parts[2]
}

function top(path) { return index(path, "/") ? substr(path, 1, index(path, "/") - 1) : "" }

# Takes "x/../" and "./" out of a path.
function plain(path) {
  while (sub("/[.]/", "/", path)) {}
  while (sub("[^/]+/[.][.]/", "", path)) {}
  return path
}

# The file of the sources that a header names, or "": beside the including file, or from the top.
function target(file, header,   beside) {
  beside = file
  sub("[^/]*$", "", beside)
  beside = plain(beside header)
  if (beside in known) return beside
  header = plain(header)
  return (header in known) || (top(header) in level) ? header : ""
}

function check(file, header,   from, to, path) {
  from = top(file)
  path = target(file, header)
  if (path != "") {
    to = top(path)
    if (to != from && level[to] >= level[from]) fail(file, header, from " may not use " to)
    if (to == from && room(path) != room(file) && room_level[room(path)] >= room_level[room(file)])
      fail(file, header, room(file) " may not use " room(path))
  } else if (tolower(header) ~ windows) {
    if (from != "win32") fail(file, header, "only win32 may use Windows")
  } else if (header ~ posix) {
    if (from != "posix") fail(file, header, "only posix may use POSIX")
  }
}

function read_file(file,   line, start) {
  while ((getline line < file) > 0) {
    if (line !~ /^[ \t]*#[ \t]*include/) continue
    start = match(line, /["<][^">]+[">]/)
    if (start == 0) fail(file, line, "the name of the header must be written out")
    else check(file, substr(line, start + 1, RLENGTH - 2))
  }
  close(file)
}

END {
  for (i = 1; i <= count; i++) {
    if (!(top(files[i]) in level)) { print files[i] " lies in no folder of the architecture"; failures++ }
    else if (room(files[i]) != "" && !(room(files[i]) in room_level)) {
      print files[i] " lies in no room of " top(files[i])
      failures++
    } else read_file(files[i])
  }
  if (count == 0) { print "no sources found"; failures++ }
  exit failures > 0
}'
