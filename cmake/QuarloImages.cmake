# Pictures as tables of GRF images in a program.
#
#     quarlo_add_images(TARGET NAME ENCODE option... PICTURES file...)
#
# Adds to a target an array NAME of GGrfImage records, one for each PNG file in their order, and the
# header NAME.h, which declares it and a constant for each place in it: the picture home.png is
# NAME[NAME_HOME]. ENCODE takes the options of quarlo-grf encode.
function(quarlo_add_images target name)
    cmake_parse_arguments(PARSE_ARGV 2 images "" "" "ENCODE;PICTURES")
    if(TARGET quarlo::quarlo-grf)
        set(tool quarlo::quarlo-grf)
    else()
        set(tool quarlo-grf)
    endif()
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/${name})
    file(MAKE_DIRECTORY ${folder})
    set(files)
    foreach(picture IN LISTS images_PICTURES)
        get_filename_component(stem ${picture} NAME_WE)
        get_filename_component(picture ${picture} ABSOLUTE)
        add_custom_command(OUTPUT ${folder}/${stem}.grf
            COMMAND ${tool} encode --quiet ${images_ENCODE} ${picture} ${folder}/${stem}.grf
            DEPENDS ${tool} ${picture} VERBATIM)
        list(APPEND files ${folder}/${stem}.grf)
    endforeach()
    add_custom_command(OUTPUT ${folder}/${name}.c ${folder}/${name}.h
        COMMAND ${tool} dump --name ${name} --output ${folder}/${name}.c ${files}
        COMMAND ${tool} dump --name ${name} --output ${folder}/${name}.h --header ${files}
        DEPENDS ${tool} ${files} VERBATIM)
    target_sources(${target} PRIVATE ${folder}/${name}.c ${folder}/${name}.h)
    target_include_directories(${target} PRIVATE ${folder})
endfunction()
