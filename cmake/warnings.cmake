# The warnings that the project's own code is kept clean of, on every compiler.
function(varlo_warnings target)
  target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wconversion -Wshadow)
  if(VARLO_WERROR)
    target_compile_options(${target} PRIVATE -Werror)
  endif()
endfunction()
