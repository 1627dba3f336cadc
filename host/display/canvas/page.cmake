# A program that links the platform becomes a page: it runs in a thread of the browser of its own, and
# the page's thread has the canvas, the files in memory and what a person does.
#
# What the shared object exports, the page may call.
file(STRINGS exports.txt functions)
list(TRANSFORM functions PREPEND _)
list(JOIN functions , functions)
set(page ${CMAKE_CURRENT_LIST_DIR}/page.js)
target_link_options(gpi INTERFACE
    "$<BUILD_INTERFACE:SHELL:--js-library ${page}>"
    -sPROXY_TO_PTHREAD
    -sPTHREAD_POOL_SIZE=3
    -sEXIT_RUNTIME
    -sINITIAL_MEMORY=134217728
    -sENVIRONMENT=web,worker
    -sEXPORTED_FUNCTIONS=_main,${functions}
    -sEXPORTED_RUNTIME_METHODS=ccall,ENV,FS)
set_property(TARGET gpi APPEND PROPERTY INTERFACE_LINK_DEPENDS
    $<BUILD_INTERFACE:${page}>)
