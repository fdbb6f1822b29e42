# What a host needs of us: the libraries, the headers it includes, and the package that find_package(mavCycEd) finds.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(installed_targets mavCycEd_core mavCycEd_libxml2 mavCycEd_headless mavCycEd_memory)
if(MAVCYCED_QT)
  list(APPEND installed_targets mavCycEd_mavCycEd)
  install(DIRECTORY src/qt/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()
install(TARGETS ${installed_targets} EXPORT mavCycEdTargets ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})

# What needs no window, and the values that all share.
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

# The other public headers name headers of the core: the ports and the atom list provider.
install(DIRECTORY src/platform src/text src/kit src/catalogue src/rules src/cycle src/panels src/control src/memory
  DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mavCycEd/core FILES_MATCHING PATTERN "*.h")
install(FILES src/libxml2/Libxml2DocumentFactory.h DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/mavCycEd/core/libxml2)

set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/mavCycEd)
install(EXPORT mavCycEdTargets NAMESPACE mavCycEd:: DESTINATION ${package_folder})
configure_package_config_file(cmake/mavCycEdConfig.cmake.in ${CMAKE_CURRENT_BINARY_DIR}/mavCycEdConfig.cmake
  INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/mavCycEdConfigVersion.cmake
  COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/mavCycEdConfig.cmake ${CMAKE_CURRENT_BINARY_DIR}/mavCycEdConfigVersion.cmake
  DESTINATION ${package_folder})
