#include "Tonelake/chords/chord_types_json.h"

namespace tonelake {
namespace {

ChordDefinition decodeDefinition(const json::Node& node) {
  return ChordDefinition{
      node.member("short").text(),
      node.member("other_names").text(),
      json::decodeList(node.member("notes"),
                       [](const json::Node& note) { return note.wholeNumber(); }),
      node.member("formula").text(),
      node.member("prefix_space").wholeNumber(),
  };
}

}  // namespace

ChordsWrapper decodeChordsWrapper(const json::Node& node) {
  ChordsWrapper wrapper;
  const json::Node chords = node.member("chords");
  if (!chords.value().is_object()) chords.fail("expected an object");
  for (const auto& [name, definition] : chords.value().items()) {
    wrapper.chords.emplace_back(
        name, decodeDefinition(json::Node(definition, chords.path() + "." + name)));
  }
  return wrapper;
}

}  // namespace tonelake
