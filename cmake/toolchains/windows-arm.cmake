# 32-bit ARM Windows in Thumb-2 instructions, by clang and lld. There is no C library to link with
# here and nothing that runs the result: the library stands on what coredll.dll has, and the headers
# are those of mingw-w64 for the other 32-bit Windows.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR arm)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET thumbv7-w64-mingw32)
set(CMAKE_CXX_COMPILER_TARGET thumbv7-w64-mingw32)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(CMAKE_AR /usr/bin/llvm-ar)
set(CMAKE_RANLIB /usr/bin/llvm-ranlib)
set(CMAKE_RC_COMPILER /usr/bin/llvm-rc)
set(CMAKE_DLLTOOL llvm-dlltool -m arm)

set(mingw /usr/lib/gcc/i686-w64-mingw32/12-posix/include/c++)
set(CMAKE_C_FLAGS_INIT "-isystem /usr/share/mingw-w64/include")
set(CMAKE_CXX_FLAGS_INIT
    "-isystem ${mingw} -isystem ${mingw}/i686-w64-mingw32 ${CMAKE_C_FLAGS_INIT}")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-fuse-ld=lld -nostdlib")
set(CMAKE_C_STANDARD_LIBRARIES "" CACHE STRING "")
set(CMAKE_CXX_STANDARD_LIBRARIES "" CACHE STRING "")

set(QUARLO_FREESTANDING ON)
set(QUARLO_SYSTEM_DEF ${CMAKE_CURRENT_LIST_DIR}/coredll.def)
