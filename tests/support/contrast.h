#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "TodayChordExtension/diagram/color.h"

namespace todaychord::testing {

/// The least contrast of a text with its background (level AA of the guidelines below).
inline constexpr double readable = 4.5;

// Relative luminance and contrast as the web's accessibility guidelines define them.
inline double luminance(const Color& color) {
  const auto channel = [&](unsigned shift) {
    const double value = (color.rgb >> shift & 0xFFU) / 255.0;
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * channel(16) + 0.7152 * channel(8) + 0.0722 * channel(0);
}

inline Color over(const Color& front, const Color& back) {
  std::uint32_t rgb = 0;
  for (const unsigned shift : {0U, 8U, 16U}) {
    const double mixed = front.opacity * (front.rgb >> shift & 0xFFU) +
                         (1 - front.opacity) * (back.rgb >> shift & 0xFFU);
    rgb |= static_cast<std::uint32_t>(std::lround(mixed)) << shift;
  }
  return {rgb};
}

inline double contrast(const Color& text, const Color& back) {
  const double a = luminance(over(text, back));
  const double b = luminance(back);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}  // namespace todaychord::testing
