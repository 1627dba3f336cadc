# 32-bit x86 Linux by the native compiler's own libraries (g++-12-multilib); programs run as they are.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_C_COMPILER gcc)
set(CMAKE_CXX_COMPILER g++)
# The package that would make the system headers visible conflicts with the cross compilers.
set(CMAKE_C_FLAGS_INIT "-m32 -isystem /usr/include/x86_64-linux-gnu")
set(CMAKE_CXX_FLAGS_INIT "-m32 -isystem /usr/include/x86_64-linux-gnu")
# An emulator that emulates nothing: without one the build would not run its own programs.
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/env)
