#pragma once

#include <cstddef>

#include "Tonelake/accompaniment/chord_shape.h"
#include "Tonelake/theory/open_strings.h"

namespace tonelake {

/// The MIDI number that a string of a shape sounds, which is not a muted one.
inline int pitchOnString(const ChordShape& shape, int string) noexcept {
  const auto index = static_cast<std::size_t>(string);
  return openGuitarStrings[index] + static_cast<int>(shape.position.position[index]);
}

}  // namespace tonelake
