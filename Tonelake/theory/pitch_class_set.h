#pragma once

#include <bit>
#include <cstdint>

namespace tonelake {

/// A set of pitch classes: bit n stands for the pitch class n semitones above C, 0 to 11.
using PitchClassSet = std::uint16_t;

/// The set of one pitch class, 0 to 11.
constexpr PitchClassSet onlyPitchClass(int pitchClass) noexcept {
  return static_cast<PitchClassSet>(1U << static_cast<unsigned>(pitchClass));
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
