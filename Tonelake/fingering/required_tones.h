#pragma once

#include <cstddef>
#include <span>

#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/pitch_class_set.h"

namespace tonelake {

/// What a shape must sound of a chord, given as semitones above a root of the pitch class 0 to 11:
/// every tone, but the perfect fifth may be left out of chords of four and more.
constexpr PitchClassSet requiredTones(int root, std::span<const WholeNumber> semitones) noexcept {
  constexpr WholeNumber fifth = 7;
  constexpr std::size_t fewestTonesWithoutFifth = 4;
  const PitchClassSet all = tonesAbove(root, semitones);
  if (semitones.size() < fewestTonesWithoutFifth) return all;
  return static_cast<PitchClassSet>(all & ~onlyTone(root, fifth));
}

}  // namespace tonelake
