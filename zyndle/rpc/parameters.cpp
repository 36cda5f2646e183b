#include "zyndle/rpc/parameters.h"

#include <cmath>
#include <string>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_json.h"
#include "Tonelake/chords/chord_spelling.h"
#include "zyndle/rpc/instant_text.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::TuningNames;
using tonelake::WholeNumber;
using tonelake::WholeNumbers;

// `element` of every element of a list with one entry a string.
template <typename Decode>
auto sixOf(const json::Node& list, Decode element) {
  if (list.size() != tonelake::Tuning::stringCount) {
    list.fail("expected six strings, lowest first, not " + std::to_string(list.size()));
  }
  return json::decodeList(list, element);
}

}  // namespace

Chord chordParameter(const json::Node& parameters) {
  return tonelake::decodeChord(parameters.member("chord"));
}

Chord titledChordParameter(const json::Node& parameters) {
  Chord chord = chordParameter(parameters);
  const auto* data = tonelake::Chords::getChordData(chord.chordType);
  if (data != nullptr && !tonelake::Chords::isShowable(chord)) {
    parameters.member("chord").member("variant").fail(
        "\"" + chord.chordType + "\" has the variants 0 to " +
        std::to_string(data->notes.size() - 1) + ", not " + std::to_string(chord.variant));
  }
  return chord;
}

TuningNames tuningParameter(const json::Node& parameters) {
  const auto tuning = parameters.optionalMember("tuning");
  if (!tuning) return tonelake::Tuning::standard;
  return sixOf(*tuning, [](const json::Node& name) { return name.text(); });
}

WholeNumbers wholeNumbers(const json::Node& list) {
  return json::decodeList(list, [](const json::Node& number) { return number.wholeNumber(); });
}

WholeNumbers sixNumbers(const json::Node& list) {
  return sixOf(list, [](const json::Node& number) { return number.wholeNumber(); });
}

WholeNumbers sixOrNoNumbers(const json::Node& list) {
  return list.size() == 0 ? WholeNumbers() : sixNumbers(list);
}

WholeNumbers optionalSixNumbers(const json::Node& parameters, std::string_view key) {
  const auto list = parameters.optionalMember(key);
  return list ? sixOrNoNumbers(*list) : WholeNumbers();
}

tonelake::Instant decodeInstant(const json::Node& node) {
  const auto instant = parseInstant(node.text());
  if (!instant) {
    node.fail("\"" + node.text() + "\" is not an instant like \"2025-03-07T09:00:00Z\"");
  }
  return *instant;
}

double measure(const json::Node& number) {
  // The product of two such numbers is still finite.
  constexpr double largest = 1e100;
  const double value = number.number();
  if (std::abs(value) > largest) number.fail("expected a number from -1e100 to 1e100");
  return value;
}

WholeNumber wholeNumberOr(const json::Node& parameters, std::string_view key,
                          WholeNumber fallback) {
  const auto number = parameters.optionalMember(key);
  return number ? number->wholeNumber() : fallback;
}

bool flagOr(const json::Node& parameters, std::string_view key, bool fallback) {
  const auto flag = parameters.optionalMember(key);
  return flag ? flag->boolean() : fallback;
}

}  // namespace zyndle
