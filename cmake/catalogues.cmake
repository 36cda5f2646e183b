# The target "catalogues" checks every translation and compiles it to where the programs look for
# it: share/locale beside the folders they are built in. A language is added here.
set(ZYNDLE_LANGUAGES de es fr ja)

find_program(MSGFMT msgfmt REQUIRED)
set(compiled_catalogues "")
foreach(language IN LISTS ZYNDLE_LANGUAGES)
  set(source ${PROJECT_SOURCE_DIR}/Tonelake/resources/locale/${language}.po)
  set(folder ${PROJECT_BINARY_DIR}/share/locale/${language}/LC_MESSAGES)
  add_custom_command(
    OUTPUT ${folder}/tonelake.mo
    COMMAND ${CMAKE_COMMAND} -E make_directory ${folder}
    COMMAND ${MSGFMT} --check --output-file=${folder}/tonelake.mo ${source}
    DEPENDS ${source}
    VERBATIM)
  list(APPEND compiled_catalogues ${folder}/tonelake.mo)
endforeach()
add_custom_target(catalogues DEPENDS ${compiled_catalogues})
