#pragma once

#include <bit>
#include <cstdint>
#include <span>

#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/octave.h"

namespace tonelake {

/// A set of pitch classes: bit n stands for the pitch class n semitones above C, 0 to 11.
using PitchClassSet = std::uint16_t;

/// The set of the one pitch class that a pitch has, 0 or more semitones above some C.
constexpr PitchClassSet onlyPitchClass(int pitch) noexcept {
  return static_cast<PitchClassSet>(1U << static_cast<unsigned>(pitch) % octave);
}

/// The same for a tone so many semitones above, or below, a root of the pitch class 0 to 11.
constexpr PitchClassSet onlyTone(int root, WholeNumber semitones) noexcept {
  return onlyPitchClass(root + octave + static_cast<int>(semitones % octave));
}

/// The set of all tones of a chord.
constexpr PitchClassSet tonesAbove(int root, std::span<const WholeNumber> semitones) noexcept {
  PitchClassSet tones = 0;
  for (const WholeNumber each : semitones) tones |= onlyTone(root, each);
  return tones;
}

/// Whether `set` holds every pitch class of `others`.
constexpr bool includesAll(PitchClassSet set, PitchClassSet others) noexcept {
  return (others & ~set) == 0;
}

/// 0 to 12.
constexpr int countPitchClasses(PitchClassSet set) noexcept {
  return std::popcount(set);
}

}  // namespace tonelake
