#include "TodayChordExtension/widgets/widget_parts.h"

#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {

SceneItems draw(const ExtraLargeWidgetBackground&) {
  const auto size = widgetMetrics::sizeOf(WidgetFamily::extraLargePortrait);
  const Rectangle frame{0, 0, size.width, size.height};
  return {{drawField(frame, widgetMetrics::cornerRadius,
                     downwardGradient(frame, widgetPalette::tall))}};
}

SceneItems draw(const WidgetSectionTitle& section, Point origin, double width) {
  namespace metrics = widgetMetrics::sectionTitle;
  const auto line = [&](const std::string& text, const Font& font, const Color& color, double y) {
    return SceneItem{fitLine(text, {font, color}, {origin.x, origin.y + y}, width)};
  };
  SceneItems items{line(section.title, {boldFont, metrics::titleFont}, widgetPalette::heading,
                        metrics::titleBaseline)};
  if (!section.subtitle.empty()) {
    items.push_back(line(section.subtitle, {regularFont, metrics::subtitleFont},
                         widgetPalette::subtitle, metrics::subtitleBaseline));
  }
  return items;
}

PathItem drawField(const Rectangle& frame, double radius, const Paint& paint) {
  return {roundedRectangle(frame, CornerRadii::all(radius)), paint};
}

SceneItems drawCard(const Rectangle& frame, const Paint& paint) {
  constexpr double rim = widgetMetrics::rimWidth;
  constexpr double radius = widgetMetrics::tall::cardRadius;
  // The rim lies within the card.
  const Rectangle inner{frame.x + rim / 2, frame.y + rim / 2, frame.width - rim,
                        frame.height - rim};
  return {{drawField(frame, radius, paint)},
          {PathItem{roundedRectangle(inner, CornerRadii::all(radius - rim / 2)), std::nullopt,
                    Stroke{widgetPalette::cardRim, rim}}}};
}

LinearGradient fallingGradient(const Rectangle& frame, std::span<const ColorStop> stops) {
  return {{frame.x, frame.y},
          {frame.x + frame.width, frame.y + frame.height},
          {stops.begin(), stops.end()}};
}

LinearGradient downwardGradient(const Rectangle& frame, std::span<const ColorStop> stops) {
  return {{frame.x, frame.y}, {frame.x, frame.y + frame.height}, {stops.begin(), stops.end()}};
}

SceneItems drawLearnMore(Point corner) {
  namespace button = widgetMetrics::button;
  const Rectangle frame{corner.x, corner.y, button::width, button::height};
  const TextStyle style{
      {boldFont, widgetMetrics::caption}, widgetPalette::buttonText, TextAnchor::middle};
  const Point baseline{frame.x + frame.width / 2,
                       baselineAround(frame.y + frame.height / 2, style.font.size)};
  return {{drawField(frame, button::height / 2, widgetPalette::button)},
          {fitLine(localized("Learn More"), style, baseline, button::width - button::height / 2)}};
}

ImageItem drawCentred(const std::string& icon, const Rectangle& frame, double side,
                      const Color& tint) {
  return {icon,
          {frame.x + (frame.width - side) / 2, frame.y + (frame.height - side) / 2, side, side},
          tint};
}

Rectangle gridCell(const Rectangle& frame, int columns, int rows, double gap, int index) {
  const double width = (frame.width - gap * (columns - 1)) / columns;
  const double height = (frame.height - gap * (rows - 1)) / rows;
  const int row = index / columns;
  const int column = index % columns;
  return {frame.x + (width + gap) * column, frame.y + (height + gap) * row, width, height};
}

}  // namespace todaychord
