# What every target of the project is compiled with.

set(CMAKE_C_STANDARD 11)
set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_C_EXTENSIONS OFF)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_C_VISIBILITY_PRESET hidden)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
if(NOT EMSCRIPTEN) # where nothing is shared
    set(CMAKE_POSITION_INDEPENDENT_CODE ON)
endif()
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

add_compile_options(-Wall -Wextra -Wconversion)

# Without these a fused multiply-add or the x87 stack would move arc ends on some processors.
add_compile_options(-ffp-contract=off)
if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(i.86|x86)$" OR CMAKE_C_FLAGS MATCHES "-m32")
    add_compile_options(-msse2 -mfpmath=sse)
endif()

# Files may be larger than 2 GB on 32-bit systems too.
if(CMAKE_SIZEOF_VOID_P EQUAL 4 AND NOT WIN32)
    add_compile_definitions(_FILE_OFFSET_BITS=64)
endif()

# What is built for use does not depend on where it was built.
add_compile_options(
    $<$<CONFIG:Release,MinSizeRel>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.>)

# Hardening that costs nothing at run time: no table that the loader fills stays writable.
if(NOT WIN32 AND NOT EMSCRIPTEN)
    add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
endif()

# Hardening that costs a little: for what reads files, networks and messages. Return addresses and
# buffers on the stack are watched, large frames touch every page, copies into buffers of a known
# size are checked, indirect jumps land on marked places only, and programs have no fixed address.
set(QUARLO_HARDENED)
if(NOT QUARLO_SANITIZE AND NOT CMAKE_CROSSCOMPILING)
    include(CheckPIESupported)
    check_pie_supported(LANGUAGES C CXX)
    set(QUARLO_HARDENED -fstack-protector-strong -fstack-clash-protection
        $<$<CONFIG:Release>:-U_FORTIFY_SOURCE> $<$<CONFIG:Release>:-D_FORTIFY_SOURCE=3>)
    if(CMAKE_SYSTEM_PROCESSOR MATCHES "^(x86_64|AMD64|i.86)$")
        list(APPEND QUARLO_HARDENED -fcf-protection)
    endif()
endif()

if(QUARLO_SANITIZE)
    add_compile_options(-fsanitize=${QUARLO_SANITIZE} -fno-sanitize-recover=all
                        -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${QUARLO_SANITIZE})
endif()

if(QUARLO_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()
