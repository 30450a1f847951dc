# Installation, and the CMake package by which hosts find the library.
include(CMakePackageConfigHelpers)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/iosphoto)

install(TARGETS iosphoto EXPORT iosphotoTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES include/ios_photo.h include/ios_photo_report.h include/iosphoto_export.h
              src/ithmb/ithmb.h src/model/model_devicephoto_dbmgr.h
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/iosphoto)
install(EXPORT iosphotoTargets NAMESPACE iosphoto:: DESTINATION ${package_folder})

configure_package_config_file(cmake/iosphotoConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/iosphotoConfig.cmake INSTALL_DESTINATION ${package_folder})
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/iosphotoConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/iosphotoConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/iosphotoConfigVersion.cmake
    DESTINATION ${package_folder})
