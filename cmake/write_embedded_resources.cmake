# Writes OUTPUT: a constant text for each of FILES (comma-separated paths), and FUNCTION
# (NAMESPACE::NAME), which returns them all.
string(REPLACE "," ";" files "${FILES}")
string(REGEX MATCH "^(.+)::([^:]+)$" matched "${FUNCTION}")
set(namespace ${CMAKE_MATCH_1})
set(name ${CMAKE_MATCH_2})
set(text "#include \"Tonelake/platform/embedded_resources.h\"\n\nnamespace ${namespace} {\nnamespace {\n")
set(rows "")
set(number 0)
foreach(file IN LISTS files)
  file(READ ${file} hex HEX)
  string(LENGTH "${hex}" hex_length)
  math(EXPR bytes "${hex_length} / 2")
  # Every byte is written as \xNN: no quoting rules to get wrong, and CMake's own list separators
  # inside a file cannot disturb it. In one text and not as an array of characters, which takes
  # the compiler five times as long, a quarter of a second for a typeface.
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "\\\\x\\1" literal "${hex}")
  string(APPEND text "constexpr char file${number}[] = \"${literal}\";\n")
  get_filename_component(file_name ${file} NAME)
  string(APPEND rows "    {\"${file_name}\", {file${number}, ${bytes}}},\n")
  math(EXPR number "${number} + 1")
endforeach()
string(APPEND text "constexpr tonelake::EmbeddedResource resources[] = {\n${rows}};\n}  // namespace\n\n")
string(APPEND text "std::span<const tonelake::EmbeddedResource> ${name}() noexcept {\n  return resources;\n}\n}  // namespace ${namespace}\n")
file(WRITE ${OUTPUT} "${text}")
