#pragma once

namespace todaychord {

// x grows to the right, y downwards.

struct Point {
  double x = 0;
  double y = 0;

  friend bool operator==(const Point&, const Point&) = default;
};

struct Rectangle {
  double x = 0;  ///< left edge
  double y = 0;  ///< upper edge
  double width = 0;
  double height = 0;

  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

/// One cubic curve.
struct Curve {
  Point start;
  Point control1;
  Point control2;
  Point end;

  friend bool operator==(const Curve&, const Curve&) = default;
};

}  // namespace todaychord
