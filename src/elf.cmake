# The shared object: only the listed names leave it, and calls inside it go straight.
file(READ exports.txt names)
string(REGEX REPLACE "([^\n]+)\n" "        \\1;\n" names "${names}")
file(CONFIGURE OUTPUT exports.map CONTENT "QUARLO_1 {\n    global:\n${names}    local: *;\n};\n")

target_compile_options(quarlo_objects PRIVATE -fno-semantic-interposition)
# With debug information it tells of every function (tests/abi), also of two that do the same.
target_compile_options(quarlo_objects PRIVATE
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<CONFIG:RelWithDebInfo>>:-fno-ipa-icf>)
target_link_options(quarlo PRIVATE
    -Wl,--version-script=${CMAKE_CURRENT_BINARY_DIR}/exports.map -Wl,-Bsymbolic-functions)
set_target_properties(quarlo PROPERTIES
    VERSION ${PROJECT_VERSION} SOVERSION 1
    LINK_DEPENDS ${CMAKE_CURRENT_BINARY_DIR}/exports.map)
