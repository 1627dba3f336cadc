# The panel as a page: what it finds in its files, and the page itself.
set(fonts /usr/share/fonts/truetype)
foreach(file IN ITEMS
        ${fonts}/vlgothic/VL-Gothic-Regular.ttf@${fonts}/vlgothic/VL-Gothic-Regular.ttf
        ${fonts}/wqy/wqy-zenhei.ttc@${fonts}/wqy/wqy-zenhei.ttc
        ${CMAKE_CURRENT_SOURCE_DIR}/profiles@/profiles
        ${CMAKE_CURRENT_SOURCE_DIR}/programs@/files
        ${CMAKE_CURRENT_SOURCE_DIR}/data_server@/data_server)
    target_link_options(panel PRIVATE "SHELL:--preload-file ${file}")
endforeach()

set(page ${CMAKE_CURRENT_LIST_DIR}/index.html)
add_custom_command(TARGET panel POST_BUILD
    COMMAND ${CMAKE_COMMAND} -E copy ${page} $<TARGET_FILE_DIR:panel>)
set_target_properties(panel PROPERTIES LINK_DEPENDS ${page})
