# How other builds find the installed libraries: a CMake package, and pkg-config files that work
# wherever the tree is moved.
install(EXPORT Tonelake NAMESPACE Tonelake:: FILE TonelakeTargets.cmake
  DESTINATION ${ZYNDLE_PACKAGE_FOLDER} COMPONENT development)
configure_package_config_file(cmake/TonelakeConfig.cmake.in TonelakeConfig.cmake
  INSTALL_DESTINATION ${ZYNDLE_PACKAGE_FOLDER})
write_basic_package_version_file(TonelakeConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/TonelakeConfig.cmake
              ${PROJECT_BINARY_DIR}/TonelakeConfigVersion.cmake
  DESTINATION ${ZYNDLE_PACKAGE_FOLDER} COMPONENT development)

# install_pkg_config(NAME DESCRIPTION REQUIRES REQUIRES_PRIVATE)
function(install_pkg_config NAME DESCRIPTION REQUIRES REQUIRES_PRIVATE)
  set(folder ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
  cmake_path(RELATIVE_PATH CMAKE_INSTALL_PREFIX
    BASE_DIRECTORY ${CMAKE_INSTALL_PREFIX}/${folder} OUTPUT_VARIABLE PREFIX_FROM_PC)
  configure_file(cmake/tonelake.pc.in ${NAME}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/${NAME}.pc DESTINATION ${folder} COMPONENT development)
endfunction()
install_pkg_config(tonelake "Chords for guitarists: names, notes, shapes, progressions" "" re2)
install_pkg_config(today_chord_extension "The Zyndle widgets as plain data" tonelake "")
install_pkg_config(tonelake_call "Tonelake for other languages, by JSON-RPC messages" "" "")
