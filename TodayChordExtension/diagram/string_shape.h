#pragma once

#include "TodayChordExtension/diagram/geometry.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// A string that bows towards where it is plucked; straight when it is not displaced.
struct TONELAKE_API StringShape {
  double displacement = 0;  ///< sideways, design units
  double touchY = 0.5;      ///< where it is touched: 0 the top, 1 the bottom

  /// The string in a rectangle of this size, from the middle of its top to that of its bottom.
  Curve path(double width, double height) const;
};

}  // namespace todaychord
