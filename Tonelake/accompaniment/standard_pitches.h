#pragma once

#include <array>
#include <cstddef>

#include "Tonelake/accompaniment/chord_shape.h"

namespace tonelake {

/// MIDI numbers of the open strings E A D G B E of a guitar, lowest first, as they sound.
inline constexpr std::array<int, Tuning::stringCount> openGuitarStrings{40, 45, 50, 55, 59, 64};

/// The lowest string of a bass guitar, E.
inline constexpr int openBassString = 28;

/// The MIDI number that a string of a shape sounds, which is not a muted one.
inline int pitchOnString(const ChordShape& shape, int string) noexcept {
  const auto index = static_cast<std::size_t>(string);
  return openGuitarStrings[index] + static_cast<int>(shape.position.position[index]);
}

}  // namespace tonelake
