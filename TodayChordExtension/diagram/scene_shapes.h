#pragma once

#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// Paths of common shapes.

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

}  // namespace todaychord
