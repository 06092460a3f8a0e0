# cmake -DCOMMANDS=command.h -DRESULT=numbers.h -P resource_numbers.cmake
#
# Writes the numbers of commands as #defines for the resource compiler, which understands no C++. Their only source is
# the header. Command::NewStore becomes COMMAND_NEW_STORE.

# TwoWords becomes TWO_WORDS; a number at the end, as in Label1, keeps to its word.
function(upper_name name result)
  string(REGEX REPLACE "([a-z0-9])([A-Z])" "\\1_\\2" name "${name}")
  string(TOUPPER "${name}" name)
  set(${result} "${name}" PARENT_SCOPE)
endfunction()

set(text "// Made from command.h.\n")

file(STRINGS "${COMMANDS}" lines REGEX "^  [A-Z][A-Za-z0-9]* = [0-9]+,")
foreach(line IN LISTS lines)
  string(REGEX MATCH "^  ([A-Za-z0-9]+) = ([0-9]+)" matched "${line}")
  upper_name("${CMAKE_MATCH_1}" name)
  string(APPEND text "#define COMMAND_${name} ${CMAKE_MATCH_2}\n")
endforeach()

file(WRITE "${RESULT}" "${text}")
