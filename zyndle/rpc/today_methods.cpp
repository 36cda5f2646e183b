#include "Tonelake/chords/chord_json.h"
#include "Tonelake/today/chord_category.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

tonelake::ChordCategory decodeCategory(const json::Node& node) {
  const auto category = tonelake::ChordCategory::fromRawValue(node.text());
  if (!category) {
    node.fail("\"" + node.text() + R"(" is none of "beginner", "advanced" and "jazz")");
  }
  return *category;
}

json::Value chordOfTheDay(const json::Node& parameters, MethodContext& context) {
  const tonelake::Instant date = decodeInstant(parameters.member("for"));
  const tonelake::ChordCategory category = decodeCategory(parameters.member("category"));
  return encodeOptional(
      context.todayChordLibrary()->chordOfTheDay(date, category, *context.calendar(parameters)),
      tonelake::encodeChord);
}

json::Value getAllChords(const json::Node&, MethodContext& context) {
  return encodeList(context.todayChordLibrary()->getAllChords(), tonelake::encodeChord);
}

constexpr MethodRow rows[] = {
    {"chordOfTheDay", chordOfTheDay},
    {"getAllChords", getAllChords},
};

}  // namespace

std::span<const MethodRow> todayMethods() noexcept {
  return rows;
}

}  // namespace zyndle
