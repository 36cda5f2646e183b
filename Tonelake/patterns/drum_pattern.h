#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/uuid.h"
#include "Tonelake/patterns/pattern_enumerations.h"

namespace tonelake {

/// One voice that is struck.
struct DrumMIDINote {
  DrumNoteType noteType = DrumNoteType::rest;
  std::uint8_t noteVelocity = 0;  ///< 1 (softest) to 127; 0 is silence, more sounds like 127

  friend bool operator==(const DrumMIDINote&, const DrumMIDINote&) = default;
};

/// The voices struck together, none for a rest.
struct DrumNote {
  std::vector<DrumMIDINote> drumMIDINote;
  NoteDuration noteDuration = NoteDuration::crochet;  ///< the time until the next step

  friend bool operator==(const DrumNote&, const DrumNote&) = default;
};

/// A groove to play again and again. Made from its fields it gets an id of
/// its own, {name, description, notes, metre}; two are equal when their ids are.
struct DrumPattern {
  std::string name;
  std::string description;
  std::vector<DrumNote> drumNotes;
  TimeSignature timeSignature = TimeSignature::ts_44;
  Uuid id = Uuid::random();

  friend bool operator==(const DrumPattern& a, const DrumPattern& b) { return a.id == b.id; }
};

/// A groove that goes with some arpeggio.
struct DrumPatternWithComplexity {
  DrumPattern drumPattern;
  std::uint8_t complexity = 0;  ///< the higher, the busier; 1 to 3 in the built-in library
  Uuid id = Uuid::random();

  friend bool operator==(const DrumPatternWithComplexity&,
                         const DrumPatternWithComplexity&) = default;
};

/// A library of grooves.
struct TONELAKE_API DrumPatterns {
  std::vector<DrumPattern> drumPatterns;

  /// The first with exactly this name; null when there is none.
  const DrumPattern* getDrumPattern(std::string_view byName) const noexcept;

  friend bool operator==(const DrumPatterns&, const DrumPatterns&) = default;
};

}  // namespace tonelake
