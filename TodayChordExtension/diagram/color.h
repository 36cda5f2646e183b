#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace todaychord {

/// A colour: 0xRRGGBB and an opacity of 0 (clear) to 1.
struct Color {
  std::uint32_t rgb = 0;  ///< 0xRRGGBB
  double opacity = 1;     ///< 0 clear, 1 opaque

  /// The same red, green and blue with another opacity.
  constexpr Color withOpacity(double value) const { return {rgb, value}; }

  friend bool operator==(const Color&, const Color&) = default;
};

/// "#2A004E", without the opacity.
inline std::string hexadecimal(const Color& color) {
  constexpr char digits[] = "0123456789ABCDEF";
  constexpr int highestShift = 20;
  std::string text = "#";
  for (int shift = highestShift; shift >= 0; shift -= 4) text += digits[color.rgb >> shift & 0xFU];
  return text;
}

/// One colour of a gradient at a place from 0 (start or centre) to 1 (end or rim).
struct ColorStop {
  double place = 0;  ///< 0 to 1; stops come in the order of their places
  Color color;       ///< blends into that of the next stop

  friend bool operator==(const ColorStop&, const ColorStop&) = default;
};

/// Stops in the order of their places.
using Gradient = std::vector<ColorStop>;

}  // namespace todaychord
