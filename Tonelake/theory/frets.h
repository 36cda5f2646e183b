#pragma once

#include <array>
#include <cstdint>

#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// A fret per string, lowest string first: -1 muted, 0 open, n pressed at fret n.
using Frets = std::array<std::int8_t, Tuning::stringCount>;

/// A finger per string, lowest string first: 0 none, 1 index, 2 middle, 3 ring, 4 little. The
/// same finger on several strings is a barre.
using Fingers = std::array<std::int8_t, Tuning::stringCount>;

/// The fret of a string that is not played.
inline constexpr std::int8_t mutedString = -1;
/// The fret of a string that no finger presses.
inline constexpr std::int8_t openString = 0;

}  // namespace tonelake
