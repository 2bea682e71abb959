# Installation and the Debian package. Every path is relative, so that the prefix can be moved.
include(CMakePackageConfigHelpers)

set(privateLibraries lib/brenn-mivra)
set(sdkPackage lib/cmake/BrennMivraHost)

# A host is bound to the libraries of one minor version: with another one it does not start, instead of failing later.
set_target_properties(KZHost KZPlatform KZAdal PROPERTIES
  VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set_target_properties(KZHost KZPlatform KZAdal KZPreference PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(companion kz-sandbox prefs-session PROPERTIES INSTALL_RPATH "$ORIGIN/../${privateLibraries}")
set_target_properties(KZHost PROPERTIES EXPORT_NAME Host)

install(TARGETS KZHost EXPORT BrennMivraHostTargets
  LIBRARY DESTINATION ${privateLibraries}
  FILE_SET HEADERS DESTINATION include/brenn-mivra)
install(TARGETS KZPlatform KZAdal LIBRARY DESTINATION ${privateLibraries} NAMELINK_SKIP)
install(TARGETS KZPreference
  LIBRARY DESTINATION ${privateLibraries}
  FILE_SET HEADERS DESTINATION include/brenn-mivra)
install(TARGETS companion kz-sandbox prefs-session RUNTIME DESTINATION bin)
install(FILES packaging/brenn-mivra-companion.desktop DESTINATION share/applications)
install(FILES packaging/brenn-mivra-companion.svg DESTINATION share/icons/hicolor/scalable/apps)

install(EXPORT BrennMivraHostTargets NAMESPACE BrennMivra:: DESTINATION ${sdkPackage})
set(pluginFile ${privateLibraries}/KZPreference.so)
configure_package_config_file(cmake/BrennMivraHostConfig.cmake.in ${CMAKE_BINARY_DIR}/BrennMivraHostConfig.cmake
  INSTALL_DESTINATION ${sdkPackage} PATH_VARS pluginFile)
write_basic_package_version_file(${CMAKE_BINARY_DIR}/BrennMivraHostConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${CMAKE_BINARY_DIR}/BrennMivraHostConfig.cmake ${CMAKE_BINARY_DIR}/BrennMivraHostConfigVersion.cmake
  DESTINATION ${sdkPackage})

set(debianName brenn-mivra-preferences)
execute_process(COMMAND gzip -9nc ${CMAKE_SOURCE_DIR}/packaging/changelog
  OUTPUT_FILE ${CMAKE_BINARY_DIR}/changelog.gz COMMAND_ERROR_IS_FATAL ANY)
install(FILES packaging/copyright ${CMAKE_BINARY_DIR}/changelog.gz DESTINATION share/doc/${debianName})

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)
set(CPACK_PACKAGE_NAME ${debianName})
set(CPACK_PACKAGE_CONTACT "Brenn Mivra preferences team <preferences@brenn-mivra.example>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "preferences window for meeting applications, as a plug-in")
set(CPACK_PACKAGE_DESCRIPTION
"The plug-in shows the settings of a meeting application: account, calendars,
notifications and video devices. A small application shows it at work, and
prefs-session plays scripts with it. The headers and the CMake package are
for hosts of one's own.")
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION net)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS
  "fonts-inter, fonts-noto-cjk, gnome-keyring, openssl, qt6-translations-l10n, qt6-wayland, xdg-desktop-portal, xdg-utils")
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "cmake, g++, qt6-base-dev")
include(CPack)
