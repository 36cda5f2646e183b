#include "TodayChordExtension/diagram/scene_shapes.h"

#include <algorithm>
#include <utility>

namespace todaychord {
namespace {

// A cubic whose controls lie this part of the radius along the tangents strays from a quarter
// circle by less than 0.03 % of the radius.
constexpr double quarterCircleControl = 0.5522847498;

// Extends a path by quarter circles, each from where the path stands.
class RoundPath {
 public:
  explicit RoundPath(Point start) : path_{MoveTo{start}}, at_(start) {}

  RoundPath& lineTo(Point to) {
    if (to != at_) path_.emplace_back(LineTo{to});
    at_ = to;
    return *this;
  }

  // Around the corner to `to`; a corner without a radius leaves the path where it is.
  RoundPath& turn(Point corner, Point to) {
    if (to == at_) return *this;
    path_.emplace_back(CurveTo{towards(corner, at_), towards(corner, to), to});
    at_ = to;
    return *this;
  }

  Path close() {
    path_.emplace_back(ClosePath{});
    return std::move(path_);
  }

 private:
  static Point towards(Point corner, Point end) {
    return {end.x + quarterCircleControl * (corner.x - end.x),
            end.y + quarterCircleControl * (corner.y - end.y)};
  }

  Path path_;
  Point at_;
};

CornerRadii fit(const CornerRadii& radii, const Rectangle& frame) {
  const auto upper = [&](double radius) {
    return std::clamp(radius, 0.0, std::max(0.0, std::min(frame.width / 2, frame.height)));
  };
  const auto lower = [&](double radius, double above) {
    return std::min(upper(radius), std::max(0.0, frame.height - above));
  };
  const double left = upper(radii.topLeft);
  const double right = upper(radii.topRight);
  return {left, right, lower(radii.bottomRight, right), lower(radii.bottomLeft, left)};
}

}  // namespace

Path line(Point from, Point to) {
  return {MoveTo{from}, LineTo{to}};
}

Path curvedLine(const Curve& curve) {
  return {MoveTo{curve.start}, CurveTo{curve.control1, curve.control2, curve.end}};
}

Path circle(Point centre, double radius) {
  const double left = centre.x - radius;
  const double right = centre.x + radius;
  const double top = centre.y - radius;
  const double bottom = centre.y + radius;
  return RoundPath({centre.x, top})
      .turn({right, top}, {right, centre.y})
      .turn({right, bottom}, {centre.x, bottom})
      .turn({left, bottom}, {left, centre.y})
      .turn({left, top}, {centre.x, top})
      .close();
}

Path roundedRectangle(const Rectangle& frame, const CornerRadii& radii) {
  const CornerRadii fitting = fit(radii, frame);
  const double left = frame.x;
  const double top = frame.y;
  const double right = frame.x + frame.width;
  const double bottom = frame.y + frame.height;
  // Clockwise from behind the upper left corner.
  return RoundPath({left + fitting.topLeft, top})
      .lineTo({right - fitting.topRight, top})
      .turn({right, top}, {right, top + fitting.topRight})
      .lineTo({right, bottom - fitting.bottomRight})
      .turn({right, bottom}, {right - fitting.bottomRight, bottom})
      .lineTo({left + fitting.bottomLeft, bottom})
      .turn({left, bottom}, {left, bottom - fitting.bottomLeft})
      .lineTo({left, top + fitting.topLeft})
      .turn({left, top}, {left + fitting.topLeft, top})
      .close();
}

}  // namespace todaychord
