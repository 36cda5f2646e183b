#include "Tonelake/patterns/pattern_enumerations.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace tonelake {
namespace {

// Each in case order.
constexpr std::array durations{1.0, 0.5, 0.25, 0.125, 0.0625, 0.03125};
constexpr std::array<std::string_view, 2> timeSignatures{"3/4", "4/4"};
constexpr std::array<std::string_view, 6> directions{"t", "d", "b", "u", "r", "iii"};
constexpr std::array<std::string_view, 5> pitches{"root", "fifth", "octave", "third", "rest"};
constexpr std::array<std::string_view, 2> articulations{"pick", "mute"};

constexpr std::array drums{DrumNoteType::kick,   DrumNoteType::sidestick, DrumNoteType::snare,
                           DrumNoteType::rim,    DrumNoteType::closedHH,  DrumNoteType::openHH,
                           DrumNoteType::lowTom, DrumNoteType::midTom,    DrumNoteType::hiTom,
                           DrumNoteType::crash,  DrumNoteType::ride,      DrumNoteType::rest};

// The case whose row in the table is `value`.
template <typename Enumeration, typename Value, std::size_t size>
std::optional<Enumeration> caseOf(const std::array<Value, size>& table, const Value& value) {
  const auto found = std::find(table.begin(), table.end(), value);
  if (found == table.end()) return std::nullopt;
  return static_cast<Enumeration>(found - table.begin());
}

template <typename Value, std::size_t size, typename Enumeration>
const Value& rowOf(const std::array<Value, size>& table, Enumeration enumeration) {
  return table[static_cast<std::size_t>(enumeration)];
}

}  // namespace

double rawValue(NoteDuration duration) noexcept {
  return rowOf(durations, duration);
}

std::optional<NoteDuration> noteDurationFromRawValue(double rawValue) noexcept {
  return caseOf<NoteDuration>(durations, rawValue);
}

std::string_view rawValue(TimeSignature timeSignature) noexcept {
  return rowOf(timeSignatures, timeSignature);
}

std::optional<TimeSignature> timeSignatureFromRawValue(std::string_view rawValue) noexcept {
  return caseOf<TimeSignature>(timeSignatures, rawValue);
}

std::optional<DrumNoteType> drumNoteTypeFromRawValue(std::int64_t rawValue) noexcept {
  const auto found = std::find_if(drums.begin(), drums.end(), [&](DrumNoteType type) {
    return tonelake::rawValue(type) == rawValue;
  });
  if (found == drums.end()) return std::nullopt;
  return *found;
}

std::string_view caseName(ArpeggioDirection direction) noexcept {
  return rowOf(directions, direction);
}

std::string_view caseName(BassPitch pitch) noexcept {
  return rowOf(pitches, pitch);
}

std::string_view caseName(NoteArticulation articulation) noexcept {
  return rowOf(articulations, articulation);
}

std::optional<ArpeggioDirection> arpeggioDirectionNamed(std::string_view name) noexcept {
  return caseOf<ArpeggioDirection>(directions, name);
}

std::optional<BassPitch> bassPitchNamed(std::string_view name) noexcept {
  return caseOf<BassPitch>(pitches, name);
}

std::optional<NoteArticulation> noteArticulationNamed(std::string_view name) noexcept {
  return caseOf<NoteArticulation>(articulations, name);
}

}  // namespace tonelake
