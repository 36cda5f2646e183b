#include "TodayChordExtension/diagram/scene_placement.h"

namespace todaychord {
namespace {

// Copies every kind of item, step and paint with its lengths placed.
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

SceneItems placed(const SceneItems& items, const Placement& placement) {
  return Placer(placement)(items);
}

}  // namespace todaychord
