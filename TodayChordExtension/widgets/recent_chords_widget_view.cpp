#include "TodayChordExtension/widgets/recent_chords_widget_view.h"

#include <algorithm>
#include <string>
#include <utility>

#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {
namespace {

namespace layout = widgetMetrics::recent;
namespace tall = widgetMetrics::tall;

constexpr const char* widgetTitleText = tonelake::message("Recently Viewed Chords");

static_assert(RecentChordsEntry::capacity == std::size_t{layout::rows * tall::columns});

// The round button in the upper right corner.
SceneItems drawSearchButton() {
  constexpr double side = layout::searchButton;
  const Rectangle frame{tall::margin + tall::width - side, tall::margin, side, side};
  return {{drawField(frame, side / 2, widgetPalette::quietButton)},
          {drawCentred("magnifyingglass", frame, layout::searchIcon, widgetPalette::heading)},
          {LinkArea{frame, namedDestination(searchDestination), localized("Search")}}};
}

}  // namespace

SceneItems draw(const WidgetSmallChordCell& cell, const Rectangle& frame,
                const ViewSettings& settings) {
  SceneItems items = drawCard(frame, widgetPalette::chordCell);
  const std::string title = widgetTitle(cell.chord, titleLength);
  const double middle = frame.x + frame.width / 2;
  const TextStyle style{{regularFont, layout::cellTitleFont},
                        title.empty() ? widgetPalette::subtitle : widgetPalette::title,
                        TextAnchor::middle};
  items.push_back({fitLine(title.empty() ? localized("Unknown chord") : title, style,
                           {middle, frame.y + layout::cellTitleBaseline},
                           frame.width - 2 * tall::cardPadding)});
  if (const auto diagram = widgetDiagram(cell.chord, settings)) {
    items.push_back(
        drawDiagramAt(*diagram, middle, frame.y + layout::diagramY, layout::diagramScale));
  } else {
    items.push_back({drawCentred(stackIcon, frame, layout::icon, widgetPalette::quietIcon)});
  }
  const std::string spoken = widgetTitle(cell.chord, spokenTitleLength);
  items.push_back(
      {LinkArea{frame, chordLink(cell.chord), spoken.empty() ? localized("Chord") : spoken}});
  return items;
}

Scene drawRecentChordsWidget(const RecentChordsEntry& entry, const ViewSettings& settings) {
  const auto size = widgetMetrics::sizeOf(WidgetFamily::extraLargePortrait);
  SceneItems items = draw(ExtraLargeWidgetBackground{});
  append(items, draw(WidgetSectionTitle{localized(widgetTitleText),
                                        localized("Pick up where you left off")},
                     {tall::margin, tall::margin}, tall::width - layout::searchButton - tall::gap));
  append(items, drawSearchButton());
  const double top = tall::margin + widgetMetrics::sectionTitle::contentsY;
  const Rectangle grid{tall::margin, top, tall::width, tall::bottom - top};
  const std::size_t count = std::min(entry.chords.size(), RecentChordsEntry::capacity);
  for (std::size_t i = 0; i < count; ++i) {
    const Rectangle frame =
        gridCell(grid, tall::columns, layout::rows, tall::gap, static_cast<int>(i));
    append(items, draw(WidgetSmallChordCell{entry.chords[i]}, frame, settings));
  }
  return {size.width, size.height, localized(widgetTitleText), "", std::move(items)};
}

}  // namespace todaychord
