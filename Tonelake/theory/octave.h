#pragma once

namespace tonelake {

/// In semitones; there are as many pitch classes.
inline constexpr int octave = 12;

}  // namespace tonelake
