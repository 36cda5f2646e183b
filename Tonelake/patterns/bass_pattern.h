#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/uuid.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/patterns/pattern_enumerations.h"

namespace tonelake {

/// One note of a bass line, or a rest.
struct BassNote {
  NoteDuration noteDuration = NoteDuration::crochet;  ///< the time until the next note
  BassPitch pitch = BassPitch::root;                  ///< which tone of the chord, or a rest
  NoteArticulation noteArticulation = NoteArticulation::pick;  ///< whether it rings
  /// 1 (softest) to 127; any number may be stored, and a player brings it into this range, 0 and
  /// less being silence.
  WholeNumber noteVelocity = 0;

  friend bool operator==(const BassNote&, const BassNote&) = default;
};

/// A bass line to play over any chord, again and again. Made from its fields it gets an id of
/// its own, {name, description, notes, metre}; two are equal when their ids are.
struct BassPattern {
  std::string name;                 ///< its own in a library: patterns are looked up by it
  std::string description;          ///< sentences for the learner
  std::vector<BassNote> bassNotes;  ///< repeated from its end on
  TimeSignature timeSignature = TimeSignature::ts_44;  ///< of the music that it is for
  Uuid id = Uuid::random();                            ///< what equality goes by

  friend bool operator==(const BassPattern& a, const BassPattern& b) { return a.id == b.id; }
};

/// A bass line that goes with some arpeggio.
struct BassPatternWithComplexity {
  BassPattern bassPattern;      ///< with an id of its own
  std::uint8_t complexity = 0;  ///< the higher, the busier; 1 to 3 in the built-in library
  Uuid id = Uuid::random();     ///< of the link, not of the pattern

  friend bool operator==(const BassPatternWithComplexity&,
                         const BassPatternWithComplexity&) = default;
};

/// A library of bass lines.
struct TONELAKE_API BassPatterns {
  std::vector<BassPattern> bassPatterns;  ///< names may repeat; the first counts

  /// The first with exactly this name; null when there is none.
  const BassPattern* getBassPattern(std::string_view byName) const noexcept;

  friend bool operator==(const BassPatterns&, const BassPatterns&) = default;
};

}  // namespace tonelake
