# embed_resources(TARGET FUNCTION FILE...) compiles files into TARGET, so that the program finds
# its resources wherever it is installed. FUNCTION, written with its namespace
# ("tonelake::embeddedResources"), is made to return them under their file names, as
# Tonelake/platform/embedded_resources.h describes; a header of TARGET declares it.
function(embed_resources target function)
  set(output ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.cpp)
  set(script ${PROJECT_SOURCE_DIR}/cmake/write_embedded_resources.cmake)
  list(TRANSFORM ARGN PREPEND ${CMAKE_CURRENT_SOURCE_DIR}/ OUTPUT_VARIABLE files)
  string(JOIN "," joined ${files})
  add_custom_command(
    OUTPUT ${output}
    COMMAND ${CMAKE_COMMAND}
            -DOUTPUT=${output} -DFUNCTION=${function} -DFILES=${joined} -P ${script}
    DEPENDS ${files} ${script}
    VERBATIM)
  target_sources(${target} PRIVATE ${output})
  # A typeface is a longer literal than the language promises; both compilers take it.
  set_source_files_properties(${output} PROPERTIES COMPILE_OPTIONS -Wno-overlength-strings)
endfunction()
