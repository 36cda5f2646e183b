#pragma once

namespace tonelake {

/// In semitones; there are as many pitch classes.
inline constexpr int octave = 12;

/// `candidate` lifted by whole octaves until it lies above `last`: 4 above 28 is 40.
template <typename Number>
constexpr Number liftAbove(Number last, Number candidate) noexcept {
  if (candidate > last) return candidate;
  return candidate + ((last - candidate) / octave + 1) * octave;
}

}  // namespace tonelake
