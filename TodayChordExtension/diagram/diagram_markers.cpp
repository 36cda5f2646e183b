#include "TodayChordExtension/diagram/diagram_markers.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "TodayChordExtension/diagram/diagram_palette.h"
#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "Tonelake/fingering/finger_rules.h"

namespace todaychord {
namespace {

std::vector<FingerDot> dotsOnBoard(const DiagramLayout& layout) {
  std::vector<FingerDot> dots;
  std::copy_if(layout.dots.begin(), layout.dots.end(), std::back_inserter(dots),
               [&](const FingerDot& dot) {
                 const auto string = static_cast<std::size_t>(dot.stringIndex);
                 return isOnBoard(dot.stringIndex, layout.displayedFrets[string]);
               });
  return dots;
}

Point centreOf(const FingerDot& dot) {
  return {dot.x + metrics::markerLayerX, dot.y + metrics::markerLayerY};
}

// Who asks for less transparency gets solid markers.
bool isGlass(const ChordView& view) {
  return view.liquidGlass && !view.reduceTransparency;
}

// The companion of a marker lies below it as its shadow.
SceneItem drawCompanion(Path shape) {
  return {PathItem{std::move(shape), palette::companion, std::nullopt, metrics::companionOpacity}};
}

// The light falls on a whole row of markers from above, so that dots and bars of a row match.
LinearGradient lit(const palette::ColorStops& stops, double y, const ChordView& view) {
  const double reach = view.dotDiameter / 2;
  return {{0, y - reach}, {0, y + reach}, {stops.begin(), stops.end()}};
}

SceneItems drawSurface(const Path& shape, double y, const ChordView& view) {
  if (isGlass(view)) {
    return {{PathItem{shape, view.fillColor.withOpacity(palette::glassFrost)}},
            {PathItem{shape, lit(palette::glass, y, view),
                      Stroke{palette::glassRim, metrics::glassRimStroke}}}};
  }
  const bool isIncreased = view.colorSchemeContrast == ColorSchemeContrast::increased;
  return {
      {PathItem{shape, lit(isIncreased ? palette::dotIncreasedContrast : palette::dot, y, view)}}};
}

TextItem drawFingerNumber(WholeNumber finger, Point centre, const ChordView& view) {
  return {std::to_string(finger),
          {boldFont, metrics::fingerFontSize},
          TextAnchor::middle,
          {centre.x, baselineAround(centre.y, metrics::fingerFontSize)},
          isGlass(view) ? palette::glassNumber : palette::dotNumber};
}

SceneItem drawDot(const FingerDot& dot, const ChordView& view) {
  const Point centre = centreOf(dot);
  SceneItems items =
      drawSurface(circle(centre, view.dotDiameter / 2 - metrics::dotRim), centre.y, view);
  if (view.displayFingering && dot.finger >= tonelake::indexFinger &&
      dot.finger <= tonelake::littleFinger) {
    items.push_back({drawFingerNumber(dot.finger, centre, view)});
  }
  return {
      SceneGroup{"dot-" + std::to_string(stringNumber(dot.stringIndex, view)), std::move(items)}};
}

}  // namespace

SceneItems drawBeds(const ChordView& view, const DiagramLayout& layout) {
  const double radius = view.dotDiameter / 2;
  SceneItems beds;
  for (const FingerDot& dot : dotsOnBoard(layout)) {
    const Point centre = centreOf(dot);
    beds.push_back(drawCompanion(circle({centre.x, centre.y + metrics::companionDrop}, radius)));
    if (!isGlass(view)) beds.push_back({PathItem{circle(centre, radius), view.fillColor}});
  }
  return beds;
}

// The layout anchors a bar by its own rule; painted, it runs from the centre of its first dot to
// that of its last.
SceneItems drawBarres(const ChordView& view, const DiagramLayout& layout) {
  constexpr double height = metrics::barreHeight;
  constexpr double companionHeight = metrics::barreCompanionHeight;
  constexpr CornerRadii companionRadii = CornerRadii::all(metrics::barreCompanionRadius);
  SceneItems bars;
  for (const BarreSegment& barre : layout.barres) {
    if (!isOnBoard(barre.endStringIndex, barre.fret)) continue;
    const double x = stringX(barre.startStringIndex);
    const double y = rowY(barre.fret);
    bars.push_back(drawCompanion(roundedRectangle(
        {x, y - companionHeight / 2 + metrics::companionDrop, barre.width, companionHeight},
        companionRadii)));
    append(bars,
           drawSurface(roundedRectangle({x, y - height / 2, barre.width, height}, {}), y, view));
  }
  return bars;
}

SceneItems drawDots(const ChordView& view, const DiagramLayout& layout) {
  SceneItems dots;
  for (const FingerDot& dot : dotsOnBoard(layout)) dots.push_back(drawDot(dot, view));
  return dots;
}

}  // namespace todaychord
