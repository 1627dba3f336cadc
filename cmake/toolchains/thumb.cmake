# The same, in Thumb-2 instructions whatever the compiler's default is.
include(${CMAKE_CURRENT_LIST_DIR}/armhf.cmake)
string(APPEND CMAKE_C_FLAGS_INIT " -mthumb")
string(APPEND CMAKE_CXX_FLAGS_INIT " -mthumb")
