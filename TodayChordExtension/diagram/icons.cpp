#include "TodayChordExtension/diagram/icons.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "TodayChordExtension/diagram/icon_drawings.h"
#include "TodayChordExtension/diagram/icon_path.h"
#include "TodayChordExtension/diagram/scene_placement.h"
#include "Tonelake/foundation/fatal.h"

namespace todaychord {
namespace {

// Widths of the pens, on the grid.
constexpr double linePen = 1.5;
constexpr double fineLinePen = 0.9;

const IconDrawing* findDrawing(std::string_view name) {
  const auto drawings = iconDrawings();
  const auto found = std::find_if(drawings.begin(), drawings.end(),
                                  [&](const IconDrawing& drawing) { return drawing.name == name; });
  return found == drawings.end() ? nullptr : &*found;
}

// Turns paths about the middle of the grid.
class Turn {
 public:
  explicit Turn(double degrees)
      : cosine_(std::cos(degrees * std::numbers::pi / halfTurn)),
        sine_(std::sin(degrees * std::numbers::pi / halfTurn)) {}

  Point operator()(Point point) const {
    const double x = point.x - middle;
    const double y = point.y - middle;
    return {middle + cosine_ * x - sine_ * y, middle + sine_ * x + cosine_ * y};
  }
  PathStep operator()(const MoveTo& step) const { return MoveTo{(*this)(step.to)}; }
  PathStep operator()(const LineTo& step) const { return LineTo{(*this)(step.to)}; }
  PathStep operator()(const CurveTo& step) const {
    return CurveTo{(*this)(step.control1), (*this)(step.control2), (*this)(step.to)};
  }
  PathStep operator()(const ClosePath& step) const { return step; }

 private:
  static constexpr double halfTurn = 180;
  static constexpr double middle = iconGrid / 2;
  double cosine_;
  double sine_;
};

Path readTurned(std::string_view text, double tilt) {
  std::optional<Path> path = readIconPath(text);
  if (!path) tonelake::stopWithProgrammingError("an icon is not written as icons are");
  const Turn turn(tilt);
  if (tilt != 0) {
    for (PathStep& step : *path) step = std::visit(turn, step);
  }
  return std::move(*path);
}

Stroke makePen(double width, const Color& tint) {
  return {tint, width, Stroke().miterLimit, LineCap::round, LineJoin::round};
}

// On the grid. All lines of one width are one shape: where they cross, a translucent tint stays
// as light as elsewhere.
SceneItems drawOnGrid(const IconDrawing& drawing, const Color& tint) {
  SceneItems items;
  const auto add = [&](std::string_view text, std::optional<Paint> fill,
                       std::optional<Stroke> stroke) {
    if (text.empty()) return;
    items.push_back({PathItem{readTurned(text, drawing.tilt), std::move(fill), std::move(stroke)}});
  };
  add(drawing.fineLines, std::nullopt, makePen(fineLinePen, tint));
  add(drawing.lines, std::nullopt, makePen(linePen, tint));
  add(drawing.solids, tint, std::nullopt);
  return items;
}

}  // namespace

bool hasIcon(std::string_view name) {
  return findDrawing(name) != nullptr;
}

std::vector<std::string_view> iconNames() {
  std::vector<std::string_view> names;
  for (const IconDrawing& drawing : iconDrawings()) names.push_back(drawing.name);
  return names;
}

SceneItems drawIcon(const ImageItem& image) {
  const IconDrawing* drawing = findDrawing(image.name);
  if (drawing == nullptr) return {};
  const Rectangle& frame = image.frame;
  const double side = std::min(frame.width, frame.height);
  const Point corner{frame.x + (frame.width - side) / 2, frame.y + (frame.height - side) / 2};
  return placed(drawOnGrid(*drawing, image.tint), {corner, side / iconGrid});
}

}  // namespace todaychord
