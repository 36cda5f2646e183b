#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "Tonelake/content/music_styles.h"

namespace tonelake {

/// Chords as steps of a key, and what they do to the listener.
struct ChordProgression {
  std::string progression;  ///< numerals joined by "-", large for major: "I-V-vi-IV"
  /// Chords of the progression appear as "--vi--", see ChordProgressions::getDescription.
  std::string description;
  std::vector<MusicStyles> styles;  ///< in which it is at home

  friend bool operator==(const ChordProgression&, const ChordProgression&) = default;
};

}  // namespace tonelake

template <>
struct std::hash<tonelake::ChordProgression> {
  std::size_t operator()(const tonelake::ChordProgression& progression) const noexcept {
    const std::hash<std::string> hashOf;
    std::size_t seed = hashOf(progression.progression) * 31 + hashOf(progression.description);
    for (const tonelake::MusicStyles style : progression.styles) seed = seed * 31 + style;
    return seed;
  }
};
