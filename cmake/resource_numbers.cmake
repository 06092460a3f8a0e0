# cmake -DCOMMANDS=command.h -DCONTROLS=control_ids.h -DRESULT=numbers.h -P resource_numbers.cmake
#
# Writes the numbers of commands, dialogs and controls as #defines for the resource compiler, which understands no
# C++. Their only source are the two headers. How the names are made:
#   Command::NewStore                    COMMAND_NEW_STORE
#   dialog::kStoreBuild                  DIALOG_STORE_BUILD
#   control::kOk                         CONTROL_OK
#   control::preferences::kWebDirectory  PREFERENCES_WEB_DIRECTORY

# TwoWords becomes TWO_WORDS; a number at the end, as in Label1, keeps to its word.
function(upper_name name result)
  string(REGEX REPLACE "([a-z0-9])([A-Z])" "\\1_\\2" name "${name}")
  string(TOUPPER "${name}" name)
  set(${result} "${name}" PARENT_SCOPE)
endfunction()

set(text "// Made from command.h and control_ids.h.\n")

file(STRINGS "${COMMANDS}" lines REGEX "^  [A-Z][A-Za-z0-9]* = [0-9]+,")
foreach(line IN LISTS lines)
  string(REGEX MATCH "^  ([A-Za-z0-9]+) = ([0-9]+)" matched "${line}")
  upper_name("${CMAKE_MATCH_1}" name)
  string(APPEND text "#define COMMAND_${name} ${CMAKE_MATCH_2}\n")
endforeach()

file(STRINGS "${CONTROLS}" lines REGEX "^namespace |^inline constexpr ")
foreach(line IN LISTS lines)
  if(line MATCHES "^namespace ([a-z_]+)")
    string(TOUPPER "${CMAKE_MATCH_1}" prefix)
  elseif(line MATCHES " k([A-Za-z0-9]+) = ([0-9]+)")
    set(number ${CMAKE_MATCH_2})
    upper_name("${CMAKE_MATCH_1}" name)
    string(APPEND text "#define ${prefix}_${name} ${number}\n")
  elseif(line MATCHES " k([A-Za-z0-9]+) = k([A-Za-z0-9]+)")
    set(other ${CMAKE_MATCH_2})
    upper_name("${CMAKE_MATCH_1}" name)
    upper_name("${other}" other)
    string(APPEND text "#define ${prefix}_${name} CONTROL_${other}\n")
  else()
    message(FATAL_ERROR "not understood: ${line}")
  endif()
endforeach()

file(WRITE "${RESULT}" "${text}")
