# Headers, the CMake package and the pkg-config files.

include(CMakePackageConfigHelpers)

install(DIRECTORY include/quarlo TYPE INCLUDE)
install(FILES include/gpi/gpi.h include/gpi/forwards.h include/gpi/services.h
        DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gpi)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/quarlo)
configure_package_config_file(cmake/quarloConfig.cmake.in quarloConfig.cmake
                              INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(quarloConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/quarloConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/quarloConfigVersion.cmake
              cmake/QuarloImages.cmake
        DESTINATION ${package_dir})
install(EXPORT quarlo NAMESPACE quarlo:: FILE quarloTargets.cmake DESTINATION ${package_dir})

# The prefix is told from where the file lies, so that an installed tree may be moved.
file(RELATIVE_PATH pc_prefix /${CMAKE_INSTALL_LIBDIR}/pkgconfig /)
string(REGEX REPLACE "/$" "" pc_prefix "${pc_prefix}")
set(pc_files quarlo)
if(QUARLO_BUILD_HOST)
    install(FILES include/gpi/host.h include/gpi/keys.h
            DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/gpi)
    list(APPEND pc_files gpi)
endif()
foreach(pc IN LISTS pc_files)
    configure_file(cmake/${pc}.pc.in ${pc}.pc @ONLY)
    install(FILES ${CMAKE_CURRENT_BINARY_DIR}/${pc}.pc
            DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endforeach()
