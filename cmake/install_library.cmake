# What a stranger's build uses: headers, static and shared libraries, a CMake package and
# pkg-config files.
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Until 1.0 each minor version may part with what programs were built against, and both may have to
# be installed at once.
set(ZYNDLE_BINARY_VERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})

set(ZYNDLE_PACKAGE_FOLDER ${CMAKE_INSTALL_LIBDIR}/cmake/Tonelake)

# install_library(TARGET HEADER...) installs the static library TARGET and a shared one of the same
# objects, with the public headers, which are named from the current folder. Importers know them as
# Tonelake::TARGET, the shared one, and Tonelake::TARGET_static; and pkg-config as TARGET.
function(install_library target)
  target_sources(${target} PUBLIC
    FILE_SET HEADERS BASE_DIRS ${PROJECT_SOURCE_DIR} FILES ${ARGN})

  add_library(${target}_shared SHARED $<TARGET_OBJECTS:${target}>)
  set_target_properties(${target}_shared PROPERTIES
    LINKER_LANGUAGE CXX
    OUTPUT_NAME ${target}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${ZYNDLE_BINARY_VERSION}
    EXPORT_NAME ${target})
  target_include_directories(${target}_shared INTERFACE
    $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_compile_features(${target} PUBLIC cxx_std_20)
  target_compile_features(${target}_shared INTERFACE cxx_std_20)
  # There is nothing left to compile, but the sanitizers of the chosen preset come from here.
  target_link_libraries(${target}_shared PRIVATE $<BUILD_INTERFACE:zyndle_compile_options>)
  if(NOT ZYNDLE_SANITIZE)
    target_link_options(${target}_shared PRIVATE LINKER:--no-undefined)
  endif()
  set_target_properties(${target} PROPERTIES EXPORT_NAME ${target}_static)

  install(TARGETS ${target} ${target}_shared EXPORT Tonelake
    LIBRARY COMPONENT runtime NAMELINK_COMPONENT development
    ARCHIVE COMPONENT development
    FILE_SET HEADERS COMPONENT development)
endfunction()
