#include "Tonelake/content/chord_progression_json.h"

namespace tonelake {
namespace {

MusicStyles decodeStyle(const json::Node& node) {
  const auto style = MusicStyles::fromRawValue(node.text());
  if (!style) node.fail("expected a style of music");
  return *style;
}

}  // namespace

ChordProgression decodeChordProgression(const json::Node& node) {
  return {node.member("progression").text(), node.member("description").text(),
          json::decodeList(node.member("styles"), decodeStyle)};
}

json::Value encodeChordProgression(const ChordProgression& progression) {
  json::Value styles = json::Value::array();
  for (const MusicStyles style : progression.styles) styles.push_back(style.rawValue());
  return {{"progression", progression.progression},
          {"description", progression.description},
          {"styles", styles}};
}

}  // namespace tonelake
