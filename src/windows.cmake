# quarlo.dll. The ordinal of a function is its line in the list, so that new names go to its end.
file(STRINGS exports.txt exports)
set(definitions "LIBRARY quarlo.dll\nEXPORTS\n")
set(ordinal 0)
foreach(name IN LISTS exports)
    math(EXPR ordinal "${ordinal} + 1")
    string(APPEND definitions "    ${name} @${ordinal}\n")
endforeach()
file(CONFIGURE OUTPUT quarlo.def CONTENT "${definitions}")

# A library that is known by its list alone; whichever has its name answers at run time.
function(import_library name definitions)
    set(import ${CMAKE_CURRENT_BINARY_DIR}/lib${name}.dll.a)
    # The tool names symbols for the output as it is called, so that must say nothing of where.
    add_custom_command(OUTPUT ${import}
        COMMAND ${CMAKE_DLLTOOL} --input-def ${definitions} --output-lib lib${name}.dll.a
        WORKING_DIRECTORY ${CMAKE_CURRENT_BINARY_DIR}
        DEPENDS ${definitions})
    add_custom_target(${name}_import DEPENDS ${import})
    add_library(${name} SHARED IMPORTED)
    set_target_properties(${name} PROPERTIES IMPORTED_IMPLIB ${import})
    add_dependencies(${name} ${name}_import)
    target_link_libraries(quarlo PRIVATE ${name})
endfunction()

import_library(GPI ${CMAKE_CURRENT_SOURCE_DIR}/platform/GPI.def)
if(QUARLO_SYSTEM_DEF)
    import_library(system ${QUARLO_SYSTEM_DEF})
endif()

set(entry DllMain)
if(CMAKE_SYSTEM_PROCESSOR STREQUAL i686)
    set(entry _DllMain@12)
endif()
target_sources(quarlo PRIVATE platform/dll_main.cpp ${CMAKE_CURRENT_BINARY_DIR}/quarlo.def)
target_link_options(quarlo PRIVATE -static -nostartfiles -Wl,--entry,${entry}
    -Wl,--no-insert-timestamp)
set_target_properties(quarlo PROPERTIES PREFIX "")
