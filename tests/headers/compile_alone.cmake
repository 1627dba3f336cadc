# Compiles every public header by itself. COMPILER: a C or C++ compiler; INCLUDE: their folder.

if(COMPILER MATCHES "\\+\\+[^/]*$")
    set(language -x c++ -std=c++17)
else()
    set(language -x c -std=c11)
endif()

file(GLOB headers RELATIVE ${INCLUDE} ${INCLUDE}/quarlo/*.h ${INCLUDE}/gpi/*.h)
if(NOT headers)
    message(FATAL_ERROR "no headers in ${INCLUDE}")
endif()
foreach(header IN LISTS headers)
    execute_process(COMMAND ${COMPILER} ${language} -Wall -Wextra -Wconversion -pedantic -Werror
                            -fsyntax-only -I${INCLUDE} -include ${header} /dev/null
                    RESULT_VARIABLE status)
    if(NOT status EQUAL 0)
        message(SEND_ERROR "${header} does not compile alone with ${COMPILER}")
    endif()
endforeach()
