#pragma once

#include <cstdint>
#include <vector>

namespace todaychord {

/// A colour: 0xRRGGBB and an opacity of 0 (clear) to 1.
struct Color {
  std::uint32_t rgb = 0;
  double opacity = 1;

  constexpr Color withOpacity(double value) const { return {rgb, value}; }

  friend bool operator==(const Color&, const Color&) = default;
};

/// One colour of a gradient at a place from 0 (start or centre) to 1 (end or rim).
struct ColorStop {
  double place = 0;
  Color color;

  friend bool operator==(const ColorStop&, const ColorStop&) = default;
};

using Gradient = std::vector<ColorStop>;

}  // namespace todaychord
