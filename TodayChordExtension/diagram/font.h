#pragma once

#include <string>

namespace todaychord {

inline constexpr const char* regularFont = "Space Grotesk Medium";  ///< stands in for the unknown
inline constexpr const char* boldFont = "SpaceGrotesk-SemiBold";    ///< of numbers and labels

/// A typeface of the program and its size, in the unit of what is drawn with it.
struct Font {
  std::string name;  ///< regularFont or boldFont
  double size = 0;   ///< the em

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace todaychord
