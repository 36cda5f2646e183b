#pragma once

namespace todaychord {

/// A place: x grows to the right, y downwards.
struct Point {
  double x = 0;  ///< from the left
  double y = 0;  ///< from the top

  friend bool operator==(const Point&, const Point&) = default;
};

/// An upright rectangle.
struct Rectangle {
  double x = 0;       ///< left edge
  double y = 0;       ///< upper edge
  double width = 0;   ///< to the right of x
  double height = 0;  ///< below y

  friend bool operator==(const Rectangle&, const Rectangle&) = default;
};

/// One cubic curve.
struct Curve {
  Point start;     ///< where it begins
  Point control1;  ///< what it heads for at first
  Point control2;  ///< what it comes from at last
  Point end;       ///< where it ends

  friend bool operator==(const Curve&, const Curve&) = default;
};

}  // namespace todaychord
