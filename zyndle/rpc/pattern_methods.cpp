#include <algorithm>
#include <iterator>
#include <string_view>

#include "Tonelake/foundation/text.h"
#include "Tonelake/patterns/pattern_json.h"
#include "zyndle/rpc/method_table.h"

namespace zyndle {
namespace {

using namespace tonelake;

struct PatternType {
  std::string_view name;
  json::Value (*decodeAndEncode)(const json::Node& node);
};

template <typename Pattern>
json::Value decodeAndEncode(const json::Node& node) {
  return encodePattern(tonelake::decodePattern<Pattern>(node));
}

constexpr PatternType types[] = {
    {"NoteDuration", decodeAndEncode<NoteDuration>},
    {"TimeSignature", decodeAndEncode<TimeSignature>},
    {"DrumNoteType", decodeAndEncode<DrumNoteType>},
    {"ArpeggioDirection", decodeAndEncode<ArpeggioDirection>},
    {"BassPitch", decodeAndEncode<BassPitch>},
    {"NoteArticulation", decodeAndEncode<NoteArticulation>},
    {"ArpeggioNote", decodeAndEncode<ArpeggioNote>},
    {"BassNote", decodeAndEncode<BassNote>},
    {"DrumMIDINote", decodeAndEncode<DrumMIDINote>},
    {"DrumNote", decodeAndEncode<DrumNote>},
    {"ArpeggioSequence", decodeAndEncode<ArpeggioSequence>},
    {"BassPattern", decodeAndEncode<BassPattern>},
    {"DrumPattern", decodeAndEncode<DrumPattern>},
    {"BassPatternWithComplexity", decodeAndEncode<BassPatternWithComplexity>},
    {"DrumPatternWithComplexity", decodeAndEncode<DrumPatternWithComplexity>},
    {"ArpeggioSequences", decodeAndEncode<ArpeggioSequences>},
    {"BassPatterns", decodeAndEncode<BassPatterns>},
    {"DrumPatterns", decodeAndEncode<DrumPatterns>},
};

json::Value decodePattern(const json::Node& parameters, MethodContext&) {
  const json::Node name = parameters.member("type");
  const auto* const type =
      std::find_if(std::begin(types), std::end(types),
                   [&](const PatternType& row) { return row.name == name.text(); });
  if (type == std::end(types)) name.fail(tonelake::quoted(name.text()) + " is no type of patterns");
  const json::Value document = json::parse(parameters.member("json").text());
  return type->decodeAndEncode(json::Node(document));
}

constexpr MethodRow rows[] = {{"decodePattern", decodePattern}};

}  // namespace

std::span<const MethodRow> patternMethods() noexcept {
  return rows;
}

}  // namespace zyndle
