#pragma once

#include <string>

namespace todaychord {

/// A typeface of the program and its size, in the unit of what is drawn with it.
struct Font {
  std::string name;
  double size = 0;

  friend bool operator==(const Font&, const Font&) = default;
};

}  // namespace todaychord
