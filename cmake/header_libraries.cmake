# CLI11 and nlohmann-json are header-only packages of the host. A cross build must not see the host's
# other headers, so the two are linked into a folder of their own.
set(links ${CMAKE_BINARY_DIR}/header-libraries)
file(MAKE_DIRECTORY ${links})
foreach(name CLI nlohmann)
  if(NOT EXISTS /usr/include/${name})
    message(FATAL_ERROR "The headers /usr/include/${name} are missing: install libcli11-dev and nlohmann-json3-dev.")
  endif()
  file(CREATE_LINK /usr/include/${name} ${links}/${name} SYMBOLIC)
endforeach()
add_library(varlo_header_libraries INTERFACE)
target_include_directories(varlo_header_libraries SYSTEM INTERFACE ${links})
