# `cmake --install`: the library with its language table beside it, the headers, and the package that
# find_package(QXUtility CONFIG) finds.
include(CMakePackageConfigHelpers)

set(QX_TABLE_FOLDER ${CMAKE_INSTALL_LIBDIR})
if(WIN32)
    set(QX_TABLE_FOLDER ${CMAKE_INSTALL_BINDIR})
endif()
set(_package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/QXUtility)

install(TARGETS qxutility EXPORT QXUtilityTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
install(FILES ${QX_LANGUAGE_TABLE} DESTINATION ${QX_TABLE_FOLDER})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/include/qxutility
    DESTINATION ${CMAKE_INSTALL_INCLUDEDIR} FILES_MATCHING PATTERN "*.h")

install(EXPORT QXUtilityTargets NAMESPACE QXUtility:: DESTINATION ${_package_folder})
configure_package_config_file(${PROJECT_SOURCE_DIR}/cmake/QXUtilityConfig.cmake.in
    ${CMAKE_CURRENT_BINARY_DIR}/QXUtilityConfig.cmake
    INSTALL_DESTINATION ${_package_folder} PATH_VARS QX_TABLE_FOLDER)
write_basic_package_version_file(${CMAKE_CURRENT_BINARY_DIR}/QXUtilityConfigVersion.cmake
    COMPATIBILITY SameMajorVersion)
install(FILES ${CMAKE_CURRENT_BINARY_DIR}/QXUtilityConfig.cmake
              ${CMAKE_CURRENT_BINARY_DIR}/QXUtilityConfigVersion.cmake
    DESTINATION ${_package_folder})
