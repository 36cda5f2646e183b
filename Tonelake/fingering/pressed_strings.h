#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// A set of strings: bit 0 is the lowest-pitched string, bit 5 the highest-pitched one.
using StringSet = std::uint32_t;

inline constexpr StringSet highestString = 1U << (Tuning::stringCount - 1);

/// Frets that a hand covers without moving, one for each finger.
inline constexpr int handFrets = 4;

/// A shape as the hand meets it. Frets are counted from the lowest pressed one, 0 to 3, since the
/// fingers are the same wherever on the neck a shape lies. F major, (1,3,3,2,1,1), presses the
/// strings 0, 4 and 5 at fret 0, string 3 at fret 1, and the strings 1 and 2 at fret 2.
struct PressedStrings {
  std::array<StringSet, handFrets> onFret{};
  StringSet open = 0;
  StringSet muted = 0;

  StringSet at(int fret) const noexcept { return onFret[static_cast<std::size_t>(fret)]; }
};

inline bool areSeveral(StringSet strings) noexcept {
  return (strings & (strings - 1)) != 0;
}

// The following take sets that are not empty.

/// From the lowest to the highest string of the set, with all strings between them.
inline StringSet spanOf(StringSet strings) noexcept {
  const StringSet belowLowest = (strings - 1) & ~strings;
  const StringSet upToHighest = 2 * std::bit_floor(strings) - 1;
  return upToHighest & ~belowLowest;
}

inline bool areAdjacent(StringSet strings) noexcept {
  return spanOf(strings) == strings;
}

/// All strings higher than the highest one of the set.
inline StringSet above(StringSet strings) noexcept {
  return ~(2 * std::bit_floor(strings) - 1);
}

inline StringSet withoutHighest(StringSet strings) noexcept {
  return strings & ~std::bit_floor(strings);
}

}  // namespace tonelake
