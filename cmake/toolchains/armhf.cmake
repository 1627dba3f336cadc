# 32-bit ARM Linux, hard float, by Debian's cross compiler; programs run under qemu's user emulation.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER arm-linux-gnueabihf-gcc)
set(CMAKE_CXX_COMPILER arm-linux-gnueabihf-g++)
# The compiler would tell of an old change in how it passes 64-bit pairs, on every map.
set(CMAKE_CXX_FLAGS_INIT -Wno-psabi)
set(CMAKE_FIND_ROOT_PATH /usr/arm-linux-gnueabihf)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_CROSSCOMPILING_EMULATOR "/usr/bin/qemu-arm;-L;/usr/arm-linux-gnueabihf")
