#include "TodayChordExtension/widgets/launcher_widget_view.h"

#include <utility>

#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/widgets/chord_layouts.h"
#include "TodayChordExtension/widgets/launcher_tools.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {
namespace {

namespace layout = widgetMetrics::launcher;
namespace tall = widgetMetrics::tall;

std::optional<std::string> nameOrNothing(std::string_view name) {
  return name.empty() ? std::nullopt : std::optional(std::string(name));
}

ToolLauncherCard cardOf(const LauncherTool& tool, const Color& tint) {
  return {localized(tool.title), nameOrNothing(tool.image), nameOrNothing(tool.systemImage), tint,
          namedDestination(tool.destination)};
}

// Texts of the chord's card, in a column on its left.
SceneItems drawTexts(const TodayChordLauncherCard& card, const Rectangle& frame) {
  SceneItems items;
  const auto add = [&](const std::string& text, const Font& font, const Color& color, double y) {
    const Point baseline{frame.x + layout::columnX, frame.y + y};
    items.push_back({fitLine(text, {font, color}, baseline, layout::columnWidth)});
  };
  add(inCapitals(card.category.localizedTitle()), {boldFont, widgetMetrics::footnote},
      widgetPalette::subtitle, layout::categoryBaseline);
  add(chordOfTheDayTitle(card.chord, titleLength), {regularFont, layout::titleFont},
      widgetPalette::heading, layout::titleBaseline);
  add(chordOfTheDayTones(card.chord), {regularFont, widgetMetrics::footnote},
      widgetPalette::subtitle, layout::tonesBaseline);
  append(items, drawLearnMore({frame.x + layout::columnX, frame.y + layout::buttonY}));
  return items;
}

// From `y` on: the section's title and, below it, the four tools down to the lower edge.
SceneItems drawTools(double y) {
  SceneItems items = draw(WidgetSectionTitle{localized(launcherToolsSection),
                                             localized("Everything for your practice")},
                          {tall::margin, y}, tall::width);
  const double top = y + widgetMetrics::sectionTitle::contentsY;
  const Rectangle grid{tall::margin, top, tall::width, tall::bottom - top};
  constexpr int rows = static_cast<int>(launcherTools.size()) / tall::columns;
  for (std::size_t i = 0; i < launcherTools.size(); ++i) {
    const Rectangle frame = gridCell(grid, tall::columns, rows, tall::gap, static_cast<int>(i));
    append(items, draw(cardOf(launcherTools.at(i), widgetPalette::toolTints.at(i)), frame));
  }
  return items;
}

}  // namespace

SceneItems draw(const ToolLauncherCard& card, const Rectangle& frame) {
  SceneItems items = drawCard(frame, widgetPalette::toolCard);
  const Rectangle field{frame.x + tall::cardPadding, frame.y + tall::cardPadding, layout::toolField,
                        layout::toolField};
  items.push_back({drawField(field, layout::toolFieldRadius,
                             card.tint.withOpacity(widgetPalette::toolFieldOpacity))});
  const std::string icon = card.image ? *card.image : card.systemImage.value_or("");
  items.push_back({drawCentred(icon, field, layout::toolIcon, card.tint)});
  const Point baseline{field.x, frame.y + frame.height - layout::toolTitleFromBottom};
  items.push_back({fitLine(card.title, {{regularFont, layout::toolFont}, widgetPalette::heading},
                           baseline, frame.width - 2 * tall::cardPadding)});
  items.push_back({LinkArea{frame, card.destination, card.title}});
  return items;
}

SceneItems draw(const TodayChordLauncherCard& card, const Rectangle& frame,
                const ViewSettings& settings) {
  SceneItems items = drawCard(frame, fallingGradient(frame, widgetPalette::chordCard));
  append(items, drawTexts(card, frame));
  const double ink = widgetMetrics::diagramInk * layout::diagramScale;
  const double middleX = frame.x + layout::diagramMiddleX;
  const double top = frame.y + (frame.height - ink) / 2;
  items.push_back(drawPicture(widgetDiagram(card.chord, settings), middleX, top,
                              layout::diagramScale, layout::icon));
  items.push_back({LinkArea{frame, chordLink(card.chord), chordOfTheDayLabel(card.chord)}});
  return items;
}

Scene drawLauncherWidget(const LauncherEntry& entry, const ViewSettings& settings) {
  const auto size = widgetMetrics::sizeOf(WidgetFamily::extraLargePortrait);
  SceneItems items = draw(ExtraLargeWidgetBackground{});
  double y = tall::margin;
  append(items,
         draw(WidgetSectionTitle{localized(launcherChordSection), localized("A new one every day")},
              {tall::margin, y}, tall::width));
  y += widgetMetrics::sectionTitle::contentsY;
  const Rectangle card{tall::margin, y, tall::width, layout::chordCardHeight};
  append(items, draw(TodayChordLauncherCard{entry.chord, entry.category}, card, settings));
  append(items, drawTools(y + layout::chordCardHeight + layout::sectionGap));
  const std::string title =
      localized(launcherChordSection) + ", " + localized(launcherToolsSection);
  return {size.width, size.height, title, "", std::move(items)};
}

}  // namespace todaychord
