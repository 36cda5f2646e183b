#include "TodayChordExtension/widgets/chord_widget_view.h"

#include <string>
#include <utility>

#include "TodayChordExtension/diagram/fingering_instructions.h"
#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/widgets/accessory_layouts.h"
#include "TodayChordExtension/widgets/chord_layouts.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"

namespace todaychord {
namespace {

// How a family is drawn in its size: first its background, then texts and diagram over it.
struct FamilyRow {
  WidgetFamily family;
  SceneItems (*drawBackground)(const Rectangle& frame);
  SceneItems (*drawContent)(const DayChord& chord, const Rectangle& frame);
};

SceneItems drawHome(const Rectangle& frame) {
  return {{drawField(frame, widgetMetrics::cornerRadius, widgetPalette::home)}};
}

SceneItems drawNight(const Rectangle& frame) {
  return {{drawField(frame, widgetMetrics::cornerRadius, widgetPalette::large)}};
}

SceneItems drawNothing(const Rectangle&) {
  return {};
}

// clang-format off
constexpr FamilyRow rows[] = {
    {WidgetFamily::small,                drawHome,                drawSmallLayout},
    {WidgetFamily::medium,               drawHome,                drawMediumLayout},
    {WidgetFamily::large,                drawNight,               drawLargeLayout},
    {WidgetFamily::extraLarge,           drawNight,               drawExtraLargeLayout},
    {WidgetFamily::accessoryCircular,    drawCircularBackground,  drawCircularLayout},
    {WidgetFamily::accessoryRectangular, drawRectangularBackground, drawRectangularLayout},
    {WidgetFamily::accessoryInline,      drawNothing,             drawInlineLayout},
};
// clang-format on

// The first row, small, stands in for families without one.
const FamilyRow& rowOf(WidgetFamily family) {
  for (const FamilyRow& row : rows) {
    if (row.family == family) return row;
  }
  return rows[0];
}

}  // namespace

Scene drawChordWidget(const ChordEntry& entry, WidgetFamily family, const ViewSettings& settings) {
  const FamilyRow& row = rowOf(family);
  const auto size = widgetMetrics::sizeOf(row.family);
  const Rectangle frame{0, 0, size.width, size.height};
  const DayChord chord{entry.chord, widgetDiagram(entry.chord, settings)};
  const std::string label = chordOfTheDayLabel(entry.chord);
  SceneItems items = row.drawBackground(frame);
  append(items, row.drawContent(chord, frame));
  items.push_back({LinkArea{frame, chordLink(entry.chord), label}});
  const std::string description =
      chord.diagram ? describeFingering(chord.diagram->position, chord.diagram->fingering) : "";
  return {size.width, size.height, label, description, std::move(items)};
}

}  // namespace todaychord
