#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/uuid.h"
#include "Tonelake/patterns/bass_pattern.h"
#include "Tonelake/patterns/drum_pattern.h"
#include "Tonelake/patterns/pattern_enumerations.h"

namespace tonelake {

/// One thing that the picking hand does.
struct ArpeggioNote {
  /// The time until the next step, unless another note of this one is shorter.
  NoteDuration noteDuration = NoteDuration::crochet;
  ArpeggioDirection arpeggioDirection = ArpeggioDirection::t;  ///< which strings
  NoteArticulation noteArticulation = NoteArticulation::pick;  ///< whether they ring
  /// 1 (softest) to 127; more sounds like 127. 0 is a stroke through the air: the hand moves as
  /// ever, but nothing sounds and what rings goes on ringing.
  std::uint8_t noteVelocity = 0;

  friend bool operator==(const ArpeggioNote&, const ArpeggioNote&) = default;
};

/// What the hand does at one moment. The next step follows when the shortest of the notes is over;
/// a step without notes takes no time.
using ArpeggioStep = std::vector<ArpeggioNote>;

/// A way of picking or strumming, to play over any chord, again and again, and what goes with it.
/// Made from its fields it gets an id of its own, {name, description, steps, metre, basses, drums};
/// two are equal when their ids are.
struct ArpeggioSequence {
  std::string name;                    ///< its own in a library: patterns are looked up by it
  std::string description;             ///< sentences for the learner
  std::vector<ArpeggioStep> sequence;  ///< repeated from its end on
  TimeSignature timeSignature = TimeSignature::ts_44;             ///< of the music that it is for
  std::vector<BassPatternWithComplexity> associatedBassPatterns;  ///< any number, in any order
  std::vector<DrumPatternWithComplexity> associatedDrumPatterns;  ///< any number, in any order
  Uuid id = Uuid::random();                                       ///< what equality goes by

  friend bool operator==(const ArpeggioSequence& a, const ArpeggioSequence& b) {
    return a.id == b.id;
  }
};

/// A library of ways to pick and strum.
struct TONELAKE_API ArpeggioSequences {
  std::vector<ArpeggioSequence> sequences;  ///< names may repeat; the first counts

  /// The first with exactly this name; null when there is none.
  const ArpeggioSequence* getSequence(std::string_view byName) const noexcept;

  friend bool operator==(const ArpeggioSequences&, const ArpeggioSequences&) = default;
};

}  // namespace tonelake
