#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace tonelake {

/// Frets of one string as bits: bit 0 a muted string, bit n + 1 fret n.
using FretSet = std::uint32_t;

constexpr FretSet fretBit(int fret) noexcept {
  return 1U << static_cast<unsigned>(fret + 1);
}

/// Neighbouring frets that a hand covers in one place.
struct FretSpan {
  int width = 0;
  int start = 0;
  /// Two spans searched before this one that share most of its combinations, as places in
  /// fretSpans; noSpan where there is none.
  std::array<std::size_t, 2> earlier{};

  constexpr FretSet frets() const noexcept { return fretBit(start + width) - fretBit(start); }
};

inline constexpr int narrowestSpan = 2;  // searched at the nut only
inline constexpr int widestSpan = 4;
inline constexpr int highestStart = 12;
inline constexpr int fretCount = highestStart + widestSpan;

inline constexpr std::size_t spanCount = 1 + 2 * (highestStart + 1);
inline constexpr std::size_t noSpan = spanCount;

/// The spans in the order of the search: two frets wide from fret 0, then three frets wide from
/// fret 0, 1, ..., 12, then four.
inline constexpr std::array<FretSpan, spanCount> fretSpans = [] {
  std::array<FretSpan, spanCount> spans;
  spans[0] = {narrowestSpan, 0, {noSpan, noSpan}};
  for (std::size_t start = 0; start <= highestStart; ++start) {
    // A span of three shares its lower frets with the one before it. A span of four is made of the
    // span of three that starts with it and of the next one.
    const std::size_t ofThree = 1 + start;
    const std::size_t ofFour = ofThree + highestStart + 1;
    const std::size_t nextOfThree = start < highestStart ? ofThree + 1 : noSpan;
    spans[ofThree] = {narrowestSpan + 1, static_cast<int>(start), {ofThree - 1, noSpan}};
    spans[ofFour] = {widestSpan, static_cast<int>(start), {ofThree, nextOfThree}};
  }
  return spans;
}();

}  // namespace tonelake
