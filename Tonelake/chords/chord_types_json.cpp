#include "Tonelake/chords/chord_types_json.h"

#include <algorithm>

#include "Tonelake/chords/formula_degree.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

// Two octaves: the spelling tables reach as far from every root.
constexpr WholeNumber highestNote = 24;
constexpr WholeNumber highestDegree = 15;

ChordDefinition decodeDefinition(const json::Node& node) {
  ChordDefinition definition{
      node.member("short").text(),
      node.member("other_names").text(),
      json::decodeList(node.member("notes"),
                       [](const json::Node& note) { return note.wholeNumber(0, highestNote); }),
      node.member("formula").text(),
      node.member("prefix_space").wholeNumber(),
  };
  const auto pieces = split(definition.formula, '-');
  const bool hasDegrees = std::all_of(pieces.begin(), pieces.end(), [](std::string_view piece) {
    return degreeOf(piece) >= 1 && degreeOf(piece) <= highestDegree;
  });
  if (!hasDegrees || pieces.size() != definition.notes.size()) {
    node.fail("expected a formula with a degree for each note");
  }
  return definition;
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
