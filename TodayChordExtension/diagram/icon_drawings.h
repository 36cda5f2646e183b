#pragma once

#include <span>
#include <string_view>

namespace todaychord {

/// An icon as it is drawn on a grid of 24 by 24, in the words of readIconPath.
struct IconDrawing {
  std::string_view name;
  double tilt = 0;                  ///< in degrees, clockwise about the middle, of all that follows
  std::string_view lines = {};      ///< outlines
  std::string_view fineLines = {};  ///< what lies within them: strings, frets, ribs
  std::string_view solids = {};     ///< filled shapes
};

/// Every icon of the program.
std::span<const IconDrawing> iconDrawings();

}  // namespace todaychord
