#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/note.h"

namespace tonelake {

/// A chord: {Note::C, "minor 7th", 1} is C minor 7th with its third, E♭, in the bass.
struct Chord {
  Note rootNote = Note::C;  ///< any of the 45; chords are offered on 17 of them
  std::string chordType;    ///< a key of the chord-type dictionary, for example "minor 7th"
  WholeNumber variant = 0;  ///< the chord tone in the bass, 0 the root; below the number of tones

  friend bool operator==(const Chord&, const Chord&) = default;
};

}  // namespace tonelake

template <>
struct std::hash<tonelake::Chord> {
  std::size_t operator()(const tonelake::Chord& chord) const noexcept {
    const std::size_t seed = std::hash<std::string>()(chord.chordType);
    const std::size_t rest = std::hash<tonelake::Note>()(chord.rootNote) * 31 +
                             std::hash<tonelake::WholeNumber>()(chord.variant);
    return seed ^ (rest + 0x9E3779B9U + (seed << 6U) + (seed >> 2U));
  }
};
