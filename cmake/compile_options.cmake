# What every target of ours is compiled with: warnings are errors, includes start at the
# project's root, and the sanitizers of the chosen preset reach every object.
add_library(zyndle_compile_options INTERFACE)
target_compile_options(zyndle_compile_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Werror)
# GCC 12 sees overlapping copies in ordinary std::string concatenation when it optimises.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
  target_compile_options(zyndle_compile_options INTERFACE -Wno-restrict)
endif()
# The objects go into static and into shared libraries. A shared one shows only what a header marks
# with TONELAKE_API, and its functions call each other without asking who else has one of the name.
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
target_compile_options(zyndle_compile_options INTERFACE -fno-semantic-interposition)
target_include_directories(zyndle_compile_options INTERFACE ${PROJECT_SOURCE_DIR})

# Where little is computed the code that is only tested is not optimised, since its build takes
# longer than its runs: the command and the tests add these options.
set(ZYNDLE_COMPILE_QUICKLY "")
if(CMAKE_BUILD_TYPE STREQUAL "Debug")
  set(ZYNDLE_COMPILE_QUICKLY -O0)
endif()

if(ZYNDLE_SANITIZE)
  target_compile_options(zyndle_compile_options INTERFACE
    -fsanitize=${ZYNDLE_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # GCC sees variables it believes unset in the code that the sanitizers add. The presets without
  # them keep the warning.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(zyndle_compile_options INTERFACE -Wno-maybe-uninitialized)
  endif()
  target_link_options(zyndle_compile_options INTERFACE -fsanitize=${ZYNDLE_SANITIZE})
endif()
