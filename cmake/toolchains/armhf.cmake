# 32-bit ARM Linux, hard float, by Debian's cross compiler; programs run under qemu's user emulation.
# What they are linked with is scripts/arm-root's; before that is made, the cross compiler's own
# libraries serve, which suffice for what does not stand on the host platform.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# The compiler would tell of an old change in how it passes 64-bit pairs, on every map, and of
# overlaps in its own strings that there are not (GCC bug 105651).
set(CMAKE_CXX_FLAGS_INIT "-Wno-psabi -Wno-restrict")
cmake_path(SET root NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../../build/arm-root)
if(EXISTS ${root}/made)
    set(CMAKE_SYSROOT ${root})
    set(CMAKE_LIBRARY_ARCHITECTURE arm-linux-gnueabihf)
    set(ENV{PKG_CONFIG_LIBDIR} ${root}/usr/lib/arm-linux-gnueabihf/pkgconfig)
    set(ENV{PKG_CONFIG_SYSROOT_DIR} ${root})
else()
    set(CMAKE_FIND_ROOT_PATH /usr/arm-linux-gnueabihf)
endif()
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR ${CMAKE_CURRENT_LIST_DIR}/../../scripts/arm-root)
