#pragma once

#include <array>

#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// MIDI numbers of the open strings E A D G B E of a guitar, lowest first, as they sound.
inline constexpr std::array<int, Tuning::stringCount> openGuitarStrings{40, 45, 50, 55, 59, 64};

/// The lowest string of a bass guitar, E.
inline constexpr int openBassString = 28;

}  // namespace tonelake
