# Looks for calls in a shared library that give text to a shell, or look for programs along PATH.
execute_process(COMMAND ${NM} --dynamic --undefined-only --format=posix ${LIBRARY}
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
if(NOT symbols MATCHES "posix_spawn")
    message(FATAL_ERROR "${LIBRARY} starts no programs at all: not what this test is for")
endif()
foreach(call IN ITEMS system popen wordexp posix_spawnp execlp execvp execvpe)
    if(symbols MATCHES "(^|\n)${call}[@ ]")
        message(FATAL_ERROR "${LIBRARY} calls ${call}()")
    endif()
endforeach()
