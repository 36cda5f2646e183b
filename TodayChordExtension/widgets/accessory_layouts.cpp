#include "TodayChordExtension/widgets/accessory_layouts.h"

#include <algorithm>
#include <string>

#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {
namespace {

namespace layout = widgetMetrics::accessory;

Point middleOf(const Rectangle& frame) {
  return {frame.x + frame.width / 2, frame.y + frame.height / 2};
}

struct TitleShape {
  const char* font;
  double fontSize;
  double width;
  double icon;  // in place of a title
};

SceneItem drawTitle(const std::string& title, const Rectangle& frame, const TitleShape& shape) {
  if (title.empty()) return {drawCentred(stackIcon, frame, shape.icon, widgetPalette::title)};
  const TextStyle style{{shape.font, shape.fontSize}, widgetPalette::heading, TextAnchor::middle};
  TextItem line = fitLine(title, style, middleOf(frame), shape.width);
  line.baseline.y = baselineAround(line.baseline.y, line.font.size);
  return {line};
}

}  // namespace

SceneItems drawCircularBackground(const Rectangle& frame) {
  const double radius = std::min(frame.width, frame.height) / 2;
  const Paint paint = downwardGradient(frame, widgetPalette::accessory);
  return {{PathItem{circle(middleOf(frame), radius), paint}}};
}

SceneItems drawRectangularBackground(const Rectangle& frame) {
  return {{drawField(frame, layout::rectangleRadius,
                     downwardGradient(frame, widgetPalette::accessory))}};
}

SceneItems drawCircularLayout(const DayChord& chord, const Rectangle& frame) {
  const double radius = std::min(frame.width, frame.height) / 2 - layout::ringInset;
  const PathItem ring{circle(middleOf(frame), radius), std::nullopt,
                      Stroke{widgetPalette::ring, layout::ringStroke}};
  return {{ring},
          drawTitle(inlineTitle(chord.chord), frame,
                    {boldFont, layout::circleFont, layout::circleTextWidth, layout::circleIcon})};
}

SceneItems drawRectangularLayout(const DayChord& chord, const Rectangle& frame) {
  return {drawTitle(
      widgetTitle(chord.chord, titleLength), frame,
      {boldFont, widgetMetrics::footnote, layout::rectangleTextWidth, layout::rectangleIcon})};
}

SceneItems drawInlineLayout(const DayChord& chord, const Rectangle& frame) {
  return {
      drawTitle(inlineTitle(chord.chord), frame,
                {regularFont, layout::inlineFont, layout::inlineTextWidth, layout::inlineIcon})};
}

}  // namespace todaychord
