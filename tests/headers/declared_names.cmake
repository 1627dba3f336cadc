# Compares the functions that the umbrella header declares for export with the list of exports.
# COMPILER: a C compiler; INCLUDE: the headers' folder; EXPORTS: the list.

execute_process(COMMAND ${COMPILER} -std=c11 -E -P -I${INCLUDE} ${INCLUDE}/quarlo/quarlo.h
                OUTPUT_VARIABLE text COMMAND_ERROR_IS_FATAL ANY)
string(REPLACE ";" "\n" text "${text}")
set(exported "(visibility\\(\"default\"\\)|dllimport)\\)\\)")
string(REGEX MATCHALL "${exported}[^\n(]*[ *\n][A-Za-z0-9_]+\\(" declarations "${text}")
set(declared)
foreach(declaration IN LISTS declarations)
    string(REGEX REPLACE ".*[ *\n]([A-Za-z0-9_]+)\\($" "\\1" name "${declaration}")
    list(APPEND declared ${name})
endforeach()

# Functions of the system with an attribute more.
list(REMOVE_ITEM declared __attribute__)

file(STRINGS ${EXPORTS} exports)
set(undeclared ${exports})
list(REMOVE_ITEM undeclared ${declared})
set(unlisted ${declared})
list(REMOVE_ITEM unlisted ${exports})
list(LENGTH declared declared_count)
list(LENGTH exports export_count)

if(undeclared)
    message(SEND_ERROR "exported, but not declared: ${undeclared}")
endif()
if(unlisted)
    message(SEND_ERROR "declared, but not exported: ${unlisted}")
endif()
if(NOT declared_count EQUAL export_count)
    message(SEND_ERROR "${declared_count} declarations for ${export_count} exports")
endif()
