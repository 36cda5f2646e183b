#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/json.h"

namespace zyndle {

/// `text` with its slots replaced by the chord's notes: for C major "root ((--1--))" becomes
/// "root (C)", and "The (--1--) major chord" "The C major chord". Slots that the chord type does
/// not have stay as they are.
std::string fillSlots(std::string_view text, const tonelake::Chord& chord);

/// What a chord is in words, with its notes in place, in the language of this run. Every type that
/// is known has all but the jazz description.
struct ChordWords {
  std::optional<std::string> character;
  std::optional<std::string> genre;
  std::optional<std::string> description;
  std::optional<std::string> jazzDescription;
};
ChordWords describeInWords(const tonelake::Chord& chord);

/// The keys "character", "genre", "description" and "jazzDescription", null where there is none,
/// added to `object`. Scripts read them: do not change.
void addChordWords(tonelake::json::Value& object, const ChordWords& words);

}  // namespace zyndle
