#pragma once

#include "TodayChordExtension/diagram/scene.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// Where a picture's origin goes and how much it grows: a length l becomes scale * l, the point
/// (x, y) becomes origin + scale * (x, y).
struct Placement {
  Point origin;      ///< where (0, 0) goes
  double scale = 1;  ///< of every length
};

/// A copy of `items` elsewhere and in another size, fonts and strokes included.
TONELAKE_API SceneItems placed(const SceneItems& items, const Placement& placement);

}  // namespace todaychord
