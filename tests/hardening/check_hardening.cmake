# Reads a built library or program of those that read files, networks and messages, and checks that it
# is hardened.
#
#   cmake -DFILE=... -DKIND=library|program -DENTRY=function -DNM=... -DREADELF=... -DOBJDUMP=...
#         -P check_hardening.cmake

cmake_policy(VERSION 3.25)

function(run output)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    set(${output} "${text}" PARENT_SCOPE)
endfunction()

function(expect text pattern failure)
    if(NOT text MATCHES "${pattern}")
        message(SEND_ERROR "${FILE}: ${failure}")
    endif()
endfunction()

run(segments ${READELF} --segments --wide ${FILE})
run(dynamic ${READELF} --dynamic --wide ${FILE})
run(borrowed ${NM} --dynamic --undefined-only --format=posix ${FILE})
run(code ${OBJDUMP} --disassemble=${ENTRY} ${FILE})

expect("${segments}" "GNU_RELRO" "tables stay writable")
expect("${segments}" "GNU_STACK[^\n]* RW  " "the stack may hold code")
expect("${dynamic}" "BIND_NOW" "functions are bound late")
expect("${borrowed}" "__stack_chk_fail" "the stack is not watched")
expect("${code}" "<${ENTRY}[^>]*>:\n[^\n]*endbr" "indirect jumps may land anywhere")
if(segments MATCHES "LOAD[^\n]* RWE ")
    message(SEND_ERROR "${FILE}: code stays writable")
endif()
if(KIND STREQUAL "program")
    expect("${dynamic}" "FLAGS_1[^\n]* PIE" "it is loaded at a fixed place")
else() # the programs copy into nothing that the compiler knows the size of
    expect("${borrowed}" "__[a-z]+_chk[@ ]" "copies into buffers of a known size are not checked")
endif()
