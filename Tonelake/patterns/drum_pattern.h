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
  DrumNoteType noteType = DrumNoteType::rest;  ///< which voice, or a rest
  std::uint8_t noteVelocity = 0;  ///< 1 (softest) to 127; 0 is silence, more sounds like 127

  friend bool operator==(const DrumMIDINote&, const DrumMIDINote&) = default;
};

/// The voices struck together, none for a rest.
struct DrumNote {
  std::vector<DrumMIDINote> drumMIDINote;             ///< in any order; the name is the stored one
  NoteDuration noteDuration = NoteDuration::crochet;  ///< the time until the next step

  friend bool operator==(const DrumNote&, const DrumNote&) = default;
};

/// A groove to play again and again. Made from its fields it gets an id of its own, {name,
/// description, notes, metre}; two are equal when their ids are.
struct DrumPattern {
  std::string name;                 ///< its own in a library: patterns are looked up by it
  std::string description;          ///< sentences for the learner
  std::vector<DrumNote> drumNotes;  ///< repeated from its end on
  TimeSignature timeSignature = TimeSignature::ts_44;  ///< of the music that it is for
  Uuid id = Uuid::random();                            ///< what equality goes by

  friend bool operator==(const DrumPattern& a, const DrumPattern& b) { return a.id == b.id; }
};

/// A groove that goes with some arpeggio.
struct DrumPatternWithComplexity {
  DrumPattern drumPattern;      ///< with an id of its own
  std::uint8_t complexity = 0;  ///< the higher, the busier; 1 to 3 in the built-in library
  Uuid id = Uuid::random();     ///< of the link, not of the pattern

  friend bool operator==(const DrumPatternWithComplexity&,
                         const DrumPatternWithComplexity&) = default;
};

/// A library of grooves.
struct TONELAKE_API DrumPatterns {
  std::vector<DrumPattern> drumPatterns;  ///< names may repeat; the first counts

  /// The first with exactly this name; null when there is none.
  const DrumPattern* getDrumPattern(std::string_view byName) const noexcept;

  friend bool operator==(const DrumPatterns&, const DrumPatterns&) = default;
};

}  // namespace tonelake
