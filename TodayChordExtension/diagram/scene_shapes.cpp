#include "TodayChordExtension/diagram/scene_shapes.h"

#include <algorithm>

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

class Placer {
 public:
  explicit Placer(const Placement& placement)
      : origin_(placement.origin), scale_(placement.scale) {}

  SceneItems operator()(const SceneItems& items) const {
    SceneItems copies;
    copies.reserve(items.size());
    for (const SceneItem& item : items) {
      copies.push_back(std::visit([&](const auto& content) { return SceneItem{(*this)(content)}; },
                                  item.content));
    }
    return copies;
  }

  PathItem operator()(const PathItem& item) const {
    PathItem copy = item;
    for (PathStep& step : copy.path) {
      step = std::visit([&](const auto& plain) { return PathStep{(*this)(plain)}; }, step);
    }
    if (copy.fill) copy.fill = (*this)(*copy.fill);
    if (copy.stroke) {
      copy.stroke->paint = (*this)(copy.stroke->paint);
      copy.stroke->width *= scale_;
    }
    return copy;
  }

  TextItem operator()(const TextItem& item) const {
    TextItem copy = item;
    copy.font.size *= scale_;
    copy.baseline = (*this)(item.baseline);
    return copy;
  }

  ImageItem operator()(const ImageItem& item) const {
    return {item.name, (*this)(item.frame), item.tint};
  }
  LinkArea operator()(const LinkArea& item) const {
    return {(*this)(item.frame), item.address, item.label};
  }
  SceneGroup operator()(const SceneGroup& group) const {
    return {group.name, (*this)(group.items)};
  }

 private:
  Point operator()(Point point) const {
    return {origin_.x + scale_ * point.x, origin_.y + scale_ * point.y};
  }
  Rectangle operator()(const Rectangle& frame) const {
    const Point corner = (*this)(Point{frame.x, frame.y});
    return {corner.x, corner.y, scale_ * frame.width, scale_ * frame.height};
  }

  MoveTo operator()(const MoveTo& step) const { return {(*this)(step.to)}; }
  LineTo operator()(const LineTo& step) const { return {(*this)(step.to)}; }
  CurveTo operator()(const CurveTo& step) const {
    return {(*this)(step.control1), (*this)(step.control2), (*this)(step.to)};
  }
  ClosePath operator()(const ClosePath& step) const { return step; }

  Color operator()(const Color& color) const { return color; }
  LinearGradient operator()(const LinearGradient& gradient) const {
    return {(*this)(gradient.start), (*this)(gradient.end), gradient.stops};
  }
  RadialGradient operator()(const RadialGradient& gradient) const {
    return {(*this)(gradient.centre), scale_ * gradient.radius, gradient.stops};
  }
  Paint operator()(const Paint& paint) const {
    return std::visit([&](const auto& plain) { return Paint{(*this)(plain)}; }, paint);
  }

  Point origin_;
  double scale_;
};

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

SceneItems placed(const SceneItems& items, const Placement& placement) {
  return Placer(placement)(items);
}

}  // namespace todaychord
