#include "TodayChordExtension/diagram/string_shape.h"

namespace todaychord {

Curve StringShape::path(double width, double height) const {
  const double middle = width / 2;
  const double touched = touchY * height;
  // Both controls lie half-way between the touched point and their end of the string.
  return Curve{{middle, 0},
               {middle + displacement, touched / 2},
               {middle + displacement, height - (height - touched) / 2},
               {middle, height}};
}

}  // namespace todaychord
