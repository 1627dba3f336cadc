# Compares what a shared library exports with the list of what it should.
execute_process(COMMAND ${NM} --dynamic --defined-only --format=posix ${LIBRARY}
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "[A-Za-z_][A-Za-z0-9_]*[^\n]* [TWVBDR] " exported "${symbols}")
list(TRANSFORM exported REPLACE "^([A-Za-z0-9_]+).*" "\\1")
list(SORT exported)
file(STRINGS ${LIST} expected)
list(SORT expected)
if(NOT exported STREQUAL expected)
    message(FATAL_ERROR "exported: ${exported}\nexpected: ${expected}")
endif()
