#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/fingering/stored_positions.h"
#include "fuzz/json_agreement.h"

// Stored fingerings: the reader of our own texts must take nothing for a list that the JSON decoder
// would not, and nothing for another list.

namespace fuzz {

using tonelake::ChordPosition;

void examine(std::string_view input) {
  const auto positions = tonelake::decodePositions(input);
  const auto document = parseJson(input);
  const auto expected =
      document ? decoded(*document,
                         [](const json::Node& node) {
                           return json::decodeList(node, tonelake::decodeChordPosition);
                         })
               : std::nullopt;
  require(positions == expected, "both readers agree");
  if (!positions) return;
  const std::string text = tonelake::encodePositions(*positions);
  require(tonelake::decodePositions(text) == positions, "a list that is stored is read again");
  json::Value encoded = json::Value::array();
  for (const auto& position : *positions) encoded.push_back(encodeChordPosition(position));
  require(text == json::write(encoded), "both writers agree");
}

std::vector<std::string> seeds() {
  const std::vector<ChordPosition> shapes = tonelake::Chords::getChordPositions(
      {tonelake::Note::E, "minor 7th", 0}, -1, tonelake::Tuning::standard);
  std::vector<std::string> seeds{"[]",
                                 R"([ { "fingering" : [], "position" : [0, 0, 0, 0, 0, -1] } ])",
                                 tonelake::encodePositions({shapes.begin(), shapes.begin() + 3})};
  for (const ChordPosition& shape : shapes) seeds.push_back(tonelake::encodePositions({shape}));
  return seeds;
}

}  // namespace fuzz
