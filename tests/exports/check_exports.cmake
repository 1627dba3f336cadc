# Reads a built shared library and checks what its users and its loader see of it.
#
#   cmake -DLIBRARY=... -DARCHIVES=... -DNAMES=exports.txt -DNM=... -DREADELF=...
#       -P check_exports.cmake

cmake_policy(VERSION 3.25)

function(run output)
    execute_process(COMMAND ${ARGN} OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
    string(REPLACE "\n" ";" lines "${text}")
    set(${output} "${lines}" PARENT_SCOPE)
endfunction()

file(STRINGS ${NAMES} names)
include(${CMAKE_CURRENT_LIST_DIR}/ordinals.cmake)
check_ordinals(names)

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

# Needed at run time: the platform's entry points, which the program answers, four functions of
# memory, two of arithmetic, and what the compiler calls by itself. So nothing is allocated, and no
# code of the C++ library's runs. What sanitizers and coverage add needs more.
function(check_needed)
    set(platform "GPI(GetService|GetFontCount|ShutdownEvents|TranslateMessage|DispatchMessage)")
    set(c_library "memcmp|memcpy|memmove|memset|sqrt|tan")
    set(compiler "__aeabi_[a-z0-9]+|__u?(div|mod|divmod)[sdt]i[34]|__cxa_finalize")
    set(loader "__gmon_start__|_ITM_[a-zA-Z]+")
    run(borrowed ${NM} --dynamic --undefined-only --format=posix ${LIBRARY})
    list(TRANSFORM borrowed REPLACE "[@ ].*" "")
    list(FILTER borrowed EXCLUDE REGEX "^(|${platform}|${c_library}|${compiler}|${loader})$")
    if(borrowed)
        message(SEND_ERROR "taken from elsewhere: ${borrowed}")
    endif()

    run(libraries ${READELF} --dynamic --wide ${LIBRARY})
    list(FILTER libraries INCLUDE REGEX "NEEDED")
    list(FILTER libraries EXCLUDE REGEX "\\[(lib(c|m|gcc_s)\\.so\\.[0-9]+|ld-linux.*)\\]")
    if(libraries)
        message(SEND_ERROR "depends on more than the C library: ${libraries}")
    endif()
endfunction()

# Nothing runs before the first call: quarlo.dll has no start-up code that would do it.
function(check_unstarted)
    run(sections ${READELF} --sections --wide ${ARCHIVES})
    if(NOT "${sections}" MATCHES "\\.text")
        message(SEND_ERROR "no objects to look at")
    endif()
    if("${sections}" MATCHES "\\.(init_array|ctors)")
        message(SEND_ERROR "some object is initialised by code")
    endif()
endfunction()

if(NOT INSTRUMENTED)
    check_needed()
    check_unstarted()
endif()

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
