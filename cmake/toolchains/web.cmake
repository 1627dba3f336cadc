# WebAssembly for browsers, by Debian's emscripten, with threads. Exceptions are those of
# JavaScript: of WebAssembly's own, this compiler loses some that are thrown inside a try block.
# scripts/web-libraries puts the libraries that the host platform stands on where they are found.
#
# What emscripten writes for node takes a fetch() in it for that of a browser.
set(CMAKE_CROSSCOMPILING_EMULATOR "/usr/bin/node;--no-experimental-fetch")
set(EMSCRIPTEN_SYSTEM_PROCESSOR wasm32) # and no x86, as which it would pass
include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)
set(CMAKE_C_FLAGS_INIT -pthread)
set(CMAKE_CXX_FLAGS_INIT "-pthread -fexceptions")
get_filename_component(web_libraries ${CMAKE_CURRENT_LIST_DIR}/../../build/web-libraries ABSOLUTE)
list(APPEND CMAKE_FIND_ROOT_PATH ${web_libraries})
set(ENV{PKG_CONFIG_LIBDIR} ${web_libraries}/lib/pkgconfig)
