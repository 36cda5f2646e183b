#include "Tonelake/fingering/stored_positions.h"

#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/foundation/text.h"

namespace tonelake {

std::string storedPositionsKey(std::string_view rootNote, std::span<const WholeNumber> intervals,
                               WholeNumber limit, const TuningNames& tuning,
                               const ApplicationInformation& application) {
  std::string key = "chordPositions-";
  key.append(rootNote).append("-");
  for (std::size_t i = 0; i < intervals.size(); ++i) {
    if (i > 0) key += ',';
    key += std::to_string(intervals[i]);
  }
  key.append("-").append(std::to_string(limit)).append("-").append(join(tuning, ","));
  key.append("-g").append(std::to_string(chordShapeGeneratorVersion));
  return key.append("-v").append(application.version).append("-b").append(application.build);
}

std::string encodePositions(const std::vector<ChordPosition>& positions) {
  json::Value list = json::Value::array();
  for (const ChordPosition& position : positions) list.push_back(encodeChordPosition(position));
  return json::write(list);
}

std::optional<std::vector<ChordPosition>> decodePositions(std::string_view text) {
  try {
    const json::Value document = json::parse(text);
    return json::decodeList(json::Node(document), decodeChordPosition);
  } catch (const json::DecodingError&) {
    return std::nullopt;
  }
}

}  // namespace tonelake
