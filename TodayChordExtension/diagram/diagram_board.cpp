#include "TodayChordExtension/diagram/diagram_board.h"

#include <algorithm>
#include <string>
#include <utility>

#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/diagram/string_shape.h"

namespace todaychord {
namespace {

constexpr CornerRadii boardRadii{metrics::boardTopRadius, metrics::boardTopRadius,
                                 metrics::boardBottomRadius, metrics::boardBottomRadius};
constexpr double boardTop = metrics::boardLayerY + metrics::boardY;
constexpr double boardBottom = boardTop + metrics::boardHeight;

Rectangle boardFrame(double height) {
  return {metrics::boardLayerX + metrics::boardX, boardTop, metrics::boardWidth, height};
}

bool hasNut(const DiagramLayout& layout) {
  return layout.baseFret == 1;
}

double fretLineOpacity(const ChordView& view) {
  return view.colorSchemeContrast == ColorSchemeContrast::increased ? 1 : metrics::fretLineOpacity;
}

// Line k of 1, 2, 3 counts from the bottom.
PathItem drawFretLine(int k, const ChordView& view) {
  const double y = metrics::boardLayerY + metrics::lowestFretLineY - metrics::rowPitch * k;
  const Color color = view.stringColor.withOpacity(fretLineOpacity(view));
  const RadialGradient paint{{metrics::boardLayerX + metrics::fretGradientX,
                              metrics::boardLayerY + metrics::fretGradientY},
                             metrics::fretGradientRadius,
                             {{0, color}, {1, color}}};
  return {line({metrics::boardLayerX + metrics::fretLineLeft, y},
               {metrics::boardLayerX + metrics::fretLineRight, y}),
          std::nullopt, Stroke{paint, metrics::fretLineStroke}};
}

bool isHighlighted(int stringNumber, const ChordView& view) {
  return std::find(view.highlightStrings.begin(), view.highlightStrings.end(), stringNumber) !=
         view.highlightStrings.end();
}

const Gradient& stringGradient(int stringNumber, bool isOuter, const ChordView& view) {
  if (!isHighlighted(stringNumber, view)) return view.stringColorGradient;
  return isOuter ? view.stringHighlightGradient : view.stringHighlightGradientPlain;
}

double displacementOf(int stringNumber, const ChordView& view) {
  const auto i = static_cast<std::size_t>(metrics::stringCount - stringNumber);
  return i < view.displacement.size() ? view.displacement[i] : 0;
}

Curve moved(const Curve& curve, Point by) {
  const auto move = [&](Point point) { return Point{point.x + by.x, point.y + by.y}; };
  return {move(curve.start), move(curve.control1), move(curve.control2), move(curve.end)};
}

// The string from the nut or the board's top to its bottom. The outer strings lie on the board's
// straight edges and leave out its round corners. One gradient spans the board, so that all
// strings share it.
SceneItem drawString(int string, const ChordView& view, const DiagramLayout& layout) {
  const int number = stringNumber(string, view);
  const bool isOuter = string == 0 || string == metrics::stringCount - 1;
  const double top = boardTop + (hasNut(layout) ? metrics::nutHeight
                                 : isOuter      ? metrics::boardTopRadius
                                                : 0);
  const double bottom = boardBottom - (isOuter ? metrics::boardBottomRadius : 0);
  const StringShape shape{displacementOf(number, view), view.touchY};
  const Curve curve = moved(shape.path(metrics::stringPitch, bottom - top),
                            {stringX(string) - metrics::stringPitch / 2, top});
  const LinearGradient paint{
      {0, boardTop}, {0, boardBottom}, stringGradient(number, isOuter, view)};
  PathItem item{curvedLine(curve), std::nullopt,
                Stroke{paint, isOuter ? metrics::outerStringStroke : metrics::innerStringStroke,
                       metrics::stringMiterLimit, isOuter ? LineCap::round : LineCap::butt}};
  return {SceneGroup{"string-" + std::to_string(number), {{std::move(item)}}}};
}

}  // namespace

SceneItems drawBoard(const ChordView& view) {
  SceneItems items;
  items.push_back({PathItem{roundedRectangle(boardFrame(metrics::boardHeight), boardRadii),
                            view.fillColor, Stroke{view.stringColor, metrics::boardStroke}}});
  for (int k = 1; k < metrics::fretRows; ++k) items.push_back({drawFretLine(k, view)});
  return items;
}

SceneItems drawStrings(const ChordView& view, const DiagramLayout& layout) {
  SceneItems items;
  for (int i = 0; i < metrics::stringCount; ++i) items.push_back(drawString(i, view, layout));
  return items;
}

SceneItems drawNut(const ChordView& view, const DiagramLayout& layout) {
  if (!hasNut(layout)) return {};
  return {{PathItem{roundedRectangle(boardFrame(metrics::nutHeight), boardRadii), view.stringColor,
                    Stroke{view.stringColor, metrics::boardStroke}}}};
}

}  // namespace todaychord
