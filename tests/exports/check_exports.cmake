# Reads a built shared library and checks what its users and its loader see of it.
#
#   cmake -DLIBRARY=... -DNAMES=exports.txt -DNM=... -DREADELF=... -P check_exports.cmake

cmake_policy(VERSION 3.25)

function(run output)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${text}")
    set(${output} "${lines}" PARENT_SCOPE)
endfunction()

file(STRINGS ${NAMES} names)
list(LENGTH names count)
if(NOT count EQUAL 264)
    message(SEND_ERROR "${NAMES} holds ${count} names")
endif()

# Exported: the listed names, no more and no less. Type A is the version itself.
run(symbols ${NM} --dynamic --defined-only --format=posix ${LIBRARY})
list(FILTER symbols EXCLUDE REGEX " A( |$)")
list(TRANSFORM symbols REPLACE "[@ ].*" "")
list(FILTER symbols EXCLUDE REGEX "^$")
foreach(name IN LISTS names)
    if(NOT name IN_LIST symbols)
        message(SEND_ERROR "listed, but not exported: ${name}")
    endif()
endforeach()
foreach(symbol IN LISTS symbols)
    if(NOT symbol IN_LIST names)
        message(SEND_ERROR "exported, but not listed: ${symbol}")
    endif()
endforeach()

# Calls inside go straight to the function: no relocation names an exported one.
run(relocations ${READELF} --relocs --wide ${LIBRARY})
foreach(relocation IN LISTS relocations)
    if(relocation MATCHES " ([A-Za-z]+)(@|@@)QUARLO_1")
        message(SEND_ERROR "called through the loader: ${CMAKE_MATCH_1}")
    endif()
endforeach()

# Needed: the platform's entry points, answered by the program, and the standard library.
run(borrowed ${NM} --dynamic --undefined-only --format=posix ${LIBRARY})
set(undefined ${borrowed})
list(FILTER undefined INCLUDE REGEX "^G")
list(TRANSFORM undefined REPLACE "[@ ].*" "")
foreach(symbol IN LISTS undefined)
    if(NOT symbol MATCHES "^GPI(GetService|GetFontCount|ShutdownEvents|TranslateMessage|DispatchMessage)$")
        message(SEND_ERROR "needed, but no entry point of a platform: ${symbol}")
    endif()
endforeach()
run(dynamic ${READELF} --dynamic --wide ${LIBRARY})
list(FILTER dynamic INCLUDE REGEX "NEEDED")
foreach(library IN LISTS dynamic)
    if(NOT library MATCHES "\\[(lib(c|m|gcc_s|stdc\\+\\+|asan|ubsan|tsan|gcov)\\.so\\.[0-9]+|ld-linux.*)\\]")
        message(SEND_ERROR "depends on more than the standard library: ${library}")
    endif()
endforeach()

# Of the standard libraries: nothing that allocates, and no code of the C++ library's.
foreach(symbol IN LISTS borrowed)
    if(symbol MATCHES "@(GLIBCXX|CXXABI)_|^(malloc|calloc|realloc|free|_Zn[wa]|_Zd[la])")
        message(SEND_ERROR "taken from a library: ${symbol}")
    endif()
endforeach()

# Hardened: the stack holds no code, and nothing that the loader has filled stays writable.
run(segments ${READELF} --segments --wide ${LIBRARY})
if(NOT "${segments}" MATCHES "GNU_RELRO")
    message(SEND_ERROR "tables stay writable")
endif()
if("${segments}" MATCHES "GNU_STACK[^;]* RWE ")
    message(SEND_ERROR "the stack may hold code")
endif()
run(flags ${READELF} --dynamic --wide ${LIBRARY})
if(NOT "${flags}" MATCHES "BIND_NOW|FLAGS_1[^;]* NOW")
    message(SEND_ERROR "functions are bound late")
endif()
