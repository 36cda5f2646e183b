#pragma once

#include <string>

namespace todaychord {

/// A typeface of the program and its size, in the unit of what is drawn with it.
struct Font {
  std::string name;  ///< "Space Grotesk Medium", which stands in for the unknown, or
                     ///< "SpaceGrotesk-SemiBold"
  double size = 0;   ///< the em

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace todaychord
