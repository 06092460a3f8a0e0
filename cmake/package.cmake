# The target "package": the installation with its Windows programs, as a folder in an archive that runs from
# wherever it is unpacked. Only where the desktop program is built.
if(TARGET varlo)
  add_custom_target(package
    COMMAND ${CMAKE_COMMAND} -DSOURCE=${PROJECT_SOURCE_DIR} -DOUTPUT=${PROJECT_BINARY_DIR}
            -DNAME=varlo-pro-${PROJECT_VERSION} -DSTRIP=${CMAKE_STRIP}
            "-DPROGRAMS=$<TARGET_FILE:varlo>;$<TARGET_FILE:varlo-cli>" -P ${PROJECT_SOURCE_DIR}/cmake/make_package.cmake
    COMMENT "Packing varlo-pro-${PROJECT_VERSION}.zip"
    VERBATIM)
  add_dependencies(package varlo varlo-cli)
endif()
