#include <algorithm>

#include "Tonelake/chords/chord_json.h"
#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/chord_filters.h"
#include "Tonelake/fingering/chord_position_json.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/fingering/chord_positions_cache.h"
#include "Tonelake/fingering/position_resolution.h"
#include "Tonelake/fingering/voicings.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

using tonelake::WholeNumber;
using tonelake::WholeNumbers;
using tonelake::Voicings::VoicingOptions;

constexpr WholeNumber allPositions = -1;

json::Value getChordPositions(const json::Node& parameters, MethodContext& context) {
  const auto limit = parameters.optionalMember("limit");
  return encodeList(
      tonelake::Chords::getChordPositions(chordParameter(parameters),
                                          limit ? limit->wholeNumber(allPositions) : allPositions,
                                          tuningParameter(parameters), context.engine()),
      tonelake::encodeChordPosition);
}

json::Value resolveChordPosition(const json::Node& parameters, MethodContext& context) {
  // Nothing else runs meanwhile, so the choice is made right here rather than in the background.
  const tonelake::PositionRequest request{
      chordParameter(parameters), optionalSixNumbers(parameters, "selectedPosition"),
      optionalSixNumbers(parameters, "presetPosition"),
      flagOr(parameters, "usesChordPositionsCache", false), tuningParameter(parameters)};
  return encodeOptional(
      tonelake::choosePosition(request, context.engine(), tonelake::ChordPositionsCache::shared()),
      tonelake::encodeChordPosition);
}

WholeNumbers intervalsOf(const json::Node& list) {
  if (list.size() == 0) list.fail("expected at least one interval");
  return json::decodeList(list, [](const json::Node& interval) { return interval.wholeNumber(0); });
}

json::Value generateChordShapes(const json::Node& parameters, MethodContext& context) {
  parameters.member("tuning");  // standard tuning stands in elsewhere, but not here
  return encodeList(
      context.engine().generateChordShapes(
          parameters.member("rootNote").text(), intervalsOf(parameters.member("intervals")),
          parameters.member("limit").wholeNumber(), tuningParameter(parameters)),
      tonelake::encodeChordPosition);
}

json::Value assignFingers(const json::Node& parameters, MethodContext&) {
  return tonelake::assignFingers(sixNumbers(parameters.member("frets")));
}

// A number of frets, strings or shapes from 0 up; larger ones than any guitar has change nothing.
int smallNumberOr(const json::Node& parameters, std::string_view key, int fallback) {
  constexpr WholeNumber large = 1000;
  const auto number = parameters.optionalMember(key);
  return number ? static_cast<int>(std::min(number->wholeNumber(0), large)) : fallback;
}

VoicingOptions voicingOptions(const json::Node& parameters) {
  VoicingOptions options;
  if (const auto capo = parameters.optionalMember("capo")) {
    options.capo = static_cast<int>(capo->wholeNumber(0, tonelake::Voicings::highestCapo));
  }
  return options;
}

json::Value findVoicings(const json::Node& parameters, MethodContext&) {
  VoicingOptions options = voicingOptions(parameters);
  const auto limit = parameters.optionalMember("limit");
  options.limit = limit ? limit->wholeNumber(allPositions) : allPositions;
  options.highestFret = smallNumberOr(parameters, "maxFret", options.highestFret);
  options.innerMutes = smallNumberOr(parameters, "maxInnerMutes", options.innerMutes);
  // Programs get every shape unless they ask for fewer; those with open strings far from the hand
  // come last.
  options.openStringsAboveFifthFret = flagOr(parameters, "openStringsAboveFifthFret", true);
  return encodeList(tonelake::Voicings::findVoicings(chordParameter(parameters),
                                                     tuningParameter(parameters), options),
                    [](const tonelake::Voicings::Voicing& voicing) {
                      json::Value record = tonelake::encodeChordPosition(voicing.position);
                      record["cost"] = voicing.cost;
                      return record;
                    });
}

json::Value connectVoicings(const json::Node& parameters, MethodContext&) {
  return encodeList(tonelake::Voicings::connectVoicings(
                        json::decodeList(parameters.member("chords"), tonelake::decodeChord),
                        tuningParameter(parameters), voicingOptions(parameters)),
                    [](const tonelake::Voicings::Voicing& voicing) {
                      return tonelake::encodeChordPosition(voicing.position);
                    });
}

json::Value chordFilters(const json::Node& parameters, MethodContext&) {
  const tonelake::ChordFilters& filters = tonelake::ChordFilters::shared();
  const auto label = parameters.optionalMember("label");
  if (!label) return filters.allFilters();
  return encodeOptional(filters.filters(label->text()), [](const auto& types) { return types; });
}

constexpr MethodRow rows[] = {
    {"getChordPositions", getChordPositions},
    {"resolveChordPosition", resolveChordPosition},
    {"generateChordShapes", generateChordShapes},
    {"assignFingers", assignFingers},
    {"findVoicings", findVoicings},
    {"connectVoicings", connectVoicings},
    {"chordFilters", chordFilters},
};

}  // namespace

std::span<const MethodRow> fingeringMethods() noexcept {
  return rows;
}

}  // namespace zyndle
