# cmake -DSOURCE=... -DOUTPUT=... -DNAME=... -DSTRIP=... -DPROGRAMS=... -P make_package.cmake: makes OUTPUT/NAME.zip
# with one folder NAME, of what SOURCE/installation ships and of the programs.
cmake_minimum_required(VERSION 3.25)
set(stage ${OUTPUT}/package)
set(folder ${stage}/${NAME})
file(REMOVE_RECURSE ${stage})
file(MAKE_DIRECTORY ${folder})

# A site and the backups of a project are made where it is used.
file(COPY ${SOURCE}/installation/ DESTINATION ${folder}
     REGEX "/Projects/[^/]+/(Web|Backup)$" EXCLUDE
     PATTERN config.ini EXCLUDE)
file(COPY_FILE ${SOURCE}/LICENSE ${folder}/LICENSE.txt)
# Taken against the folder of the program, as all its relative names are; so the folder may be moved.
file(WRITE ${folder}/config.ini "file=Projects\\Demo\\Demo.stp\n")
foreach(program IN LISTS PROGRAMS)
  file(COPY ${program} DESTINATION ${folder})
  cmake_path(GET program FILENAME name)
  execute_process(COMMAND ${STRIP} ${folder}/${name} COMMAND_ERROR_IS_FATAL ANY)
endforeach()

# An archive that is half written is never taken for a good one.
execute_process(COMMAND ${CMAKE_COMMAND} -E tar cf ${stage}/${NAME}.zip --format=zip ${NAME}
                WORKING_DIRECTORY ${stage} COMMAND_ERROR_IS_FATAL ANY)
file(RENAME ${stage}/${NAME}.zip ${OUTPUT}/${NAME}.zip)
file(REMOVE_RECURSE ${stage})
