# What a program needs that is built against the library: headers, the archive, and how CMake and pkg-config find them.
include(CMakePackageConfigHelpers)
include(${PROJECT_SOURCE_DIR}/cmake/InstallHeaders.cmake)

set(package_cmake ${CMAKE_INSTALL_LIBDIR}/cmake/ORXKMPrintProp)
set(package_pkgconfig ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

orxkmprintprop_install_headers(tables texts model dialog control)
install(
  TARGETS PrnPropControl
  EXPORT ORXKMPrintPropTargets
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(EXPORT ORXKMPrintPropTargets NAMESPACE ORXKMPrintProp:: DESTINATION ${package_cmake})

configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/ORXKMPrintPropConfig.cmake.in ORXKMPrintPropConfig.cmake
                              INSTALL_DESTINATION ${package_cmake})
write_basic_package_version_file(ORXKMPrintPropConfigVersion.cmake COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/ORXKMPrintPropConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/ORXKMPrintPropConfigVersion.cmake DESTINATION ${package_cmake})

# The prefix is told from where the file lies, so that an installed tree can be moved.
cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${package_pkgconfig}
           OUTPUT_VARIABLE pc_to_prefix)
configure_file(${PROJECT_SOURCE_DIR}/cmake/orxkmprintprop.pc.in orxkmprintprop.pc @ONLY)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/orxkmprintprop.pc DESTINATION ${package_pkgconfig})
