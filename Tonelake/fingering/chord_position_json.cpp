#include "Tonelake/fingering/chord_position_json.h"

namespace tonelake {
namespace {

PerString decodePerString(const json::Node& node, int highest) {
  PerString::Numbers numbers{};
  if (node.size() != numbers.size()) node.fail("expected six numbers, one a string");
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i] = static_cast<std::int8_t>(node.element(i).wholeNumber(-1, highest));
  }
  return numbers;
}

json::Value encodePerString(const PerString& numbers) {
  json::Value list = json::Value::array();
  for (const int number : numbers) list.push_back(number);
  return list;
}

}  // namespace

ChordPosition decodeChordPosition(const json::Node& node) {
  const json::Node fingering = node.member("fingering");
  return ChordPosition{
      decodePerString(node.member("position"), highestFret),
      fingering.size() == 0 ? PerString() : decodePerString(fingering, highestFinger)};
}

json::Value encodeChordPosition(const ChordPosition& position) {
  return {{"position", encodePerString(position.position)},
          {"fingering", encodePerString(position.fingering)}};
}

}  // namespace tonelake
