#pragma once

#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// Paths of common shapes, and copies of whole pictures elsewhere and in another size.

struct CornerRadii {
  double topLeft = 0;
  double topRight = 0;
  double bottomRight = 0;
  double bottomLeft = 0;

  static constexpr CornerRadii all(double radius) { return {radius, radius, radius, radius}; }
};

Path line(Point from, Point to);
Path curvedLine(const Curve& curve);
Path circle(Point centre, double radius);

/// A rectangle with rounded corners. No radius exceeds half the width; where two do not fit one
/// above the other, the lower one gives way: radii 8 and 4.5 become 8 and 2 in a height of 10.
Path roundedRectangle(const Rectangle& frame, const CornerRadii& radii);

/// Where a picture's origin goes and how much it grows: a length l becomes scale * l, the point
/// (x, y) becomes origin + scale * (x, y).
struct Placement {
  Point origin;
  double scale = 1;
};

/// A copy of `items` elsewhere and in another size, fonts and strokes included.
SceneItems placed(const SceneItems& items, const Placement& placement);

}  // namespace todaychord
