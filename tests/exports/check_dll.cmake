# Reads a built DLL and checks what its users and its loader see of it.
#
#   cmake -DLIBRARY=... -DNAMES=exports.txt -DREADOBJ=llvm-readobj -P check_dll.cmake

cmake_policy(VERSION 3.25)

execute_process(COMMAND ${READOBJ} --coff-imports --coff-exports ${LIBRARY} OUTPUT_VARIABLE text
                COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "[ \n]+" " " text "${text}")

# Exported: each listed name at the ordinal of its line, and nothing else.
string(REGEX MATCHALL "Ordinal: [0-9]+ Name: ([A-Za-z0-9_]+ )?RVA: 0x[1-9A-F]" exports "${text}")
list(TRANSFORM exports REPLACE "Ordinal: ([0-9]+) Name: ([A-Za-z0-9_]*) .*" "\\1 \\2")
file(STRINGS ${NAMES} names)
include(${CMAKE_CURRENT_LIST_DIR}/ordinals.cmake)
check_ordinals(names)
set(expected)
set(ordinal 0)
foreach(name IN LISTS names)
    math(EXPR ordinal "${ordinal} + 1")
    list(APPEND expected "${ordinal} ${name}")
endforeach()
if(NOT exports STREQUAL expected)
    message(SEND_ERROR "exports other than the list: ${exports}")
endif()

# Imported: the platform by its three ordinals, without names, and else the system.
string(REGEX MATCHALL "Import { Name: [^}]+" imports "${text}")
set(platform)
foreach(import IN LISTS imports)
    if(import MATCHES "Name: GPI\\.dll")
        string(REGEX MATCHALL "Symbol: [^ ]* ?\\([0-9]+\\)" symbols "${import}")
        list(APPEND platform ${symbols})
    elseif(NOT import MATCHES "Name: (KERNEL32|USER32|msvcrt|coredll)\\.dll")
        message(SEND_ERROR "depends on more than the system: ${import}")
    endif()
endforeach()
list(SORT platform)
if(NOT platform STREQUAL "Symbol: (21);Symbol: (23);Symbol: (24)")
    message(SEND_ERROR "takes other than ordinals 21, 23 and 24 from the platform: ${platform}")
endif()
