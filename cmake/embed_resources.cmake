# embed_resources(TARGET FILE...) compiles files into TARGET, so that the library finds its
# resources wherever it is installed. They are reached through
# Tonelake/platform/embedded_resources.h under their file names.
function(embed_resources target)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/embedded_resources.cpp)
  set(script ${PROJECT_SOURCE_DIR}/cmake/write_embedded_resources.cmake)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE files)
  string(JOIN "," joined ${files})
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND} -DOUTPUT=${output} -DFILES=${joined} -P ${script}
    DEPENDS ${files} ${script}
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
endfunction()
