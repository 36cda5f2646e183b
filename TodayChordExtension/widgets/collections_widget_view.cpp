#include "TodayChordExtension/widgets/collections_widget_view.h"

#include <algorithm>
#include <utility>

#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/icons.h"
#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {
namespace {

namespace layout = widgetMetrics::collections;
namespace tall = widgetMetrics::tall;

using tonelake::message;

constexpr const char* titleText = message("Curated Chord Packs");
constexpr const char* allRowText = message("View All Collections");

// An odd number takes one place more, since its first card takes two.
static_assert((CollectionsEntry::capacity + 1) / tall::columns == std::size_t{layout::rows});

// The dark foot of a card, on which the texts are readable.
SceneItems drawFoot(const WidgetCollectionItem& item, const Rectangle& frame) {
  const double bottom = frame.y + frame.height;
  const Rectangle foot{frame.x, bottom - layout::captionHeight, frame.width, layout::captionHeight};
  const CornerRadii radii{0, 0, tall::cardRadius, tall::cardRadius};
  SceneItems items{{PathItem{roundedRectangle(foot, radii), widgetPalette::collectionCaption}}};
  const auto add = [&](const std::string& text, double size, const Color& color, double y) {
    const Point baseline{frame.x + layout::textPadding, bottom - y};
    items.push_back({fitLine(text, {{regularFont, size}, color}, baseline,
                             frame.width - 2 * layout::textPadding)});
  };
  if (item.title.empty()) {
    add(item.subtitle, layout::titleFont, widgetPalette::heading, layout::loneTitleFromBottom);
    return items;
  }
  add(item.title, layout::titleFont, widgetPalette::heading, layout::titleFromBottom);
  add(item.subtitle, layout::subtitleFont, widgetPalette::subtitle, layout::subtitleFromBottom);
  return items;
}

SceneItems drawNoCollections(const Rectangle& frame) {
  const ImageItem icon = drawCentred(stackIcon, frame, layout::emptyIcon, widgetPalette::quietIcon);
  const TextStyle style{
      {regularFont, layout::allFont}, widgetPalette::subtitle, TextAnchor::middle};
  const Point baseline{frame.x + frame.width / 2,
                       icon.frame.y + icon.frame.height + layout::emptyTextBelow};
  return {{icon}, {fitLine(localized("No collections yet"), style, baseline, frame.width)}};
}

SceneItems drawAllRow() {
  const Rectangle frame{tall::margin, tall::bottom - layout::allRowHeight, tall::width,
                        layout::allRowHeight};
  SceneItems items = drawCard(frame, widgetPalette::toolCard);
  const Point baseline{frame.x + tall::cardPadding,
                       baselineAround(frame.y + frame.height / 2, layout::allFont)};
  const double chevronX = frame.x + frame.width - tall::cardPadding - layout::chevron;
  items.push_back(
      {fitLine(localized(allRowText), {{regularFont, layout::allFont}, widgetPalette::heading},
               baseline, chevronX - baseline.x)});
  items.push_back({drawCentred("chevron.right", {chevronX, frame.y, layout::chevron, frame.height},
                               layout::chevron, widgetPalette::accent)});
  items.push_back(
      {LinkArea{frame, namedDestination(collectionsDestination), localized(allRowText)}});
  return items;
}

}  // namespace

std::string WidgetCollectionArtwork::name() const {
  if (imageName && hasIcon(*imageName)) return *imageName;
  if (systemImageName && hasIcon(*systemImageName)) return *systemImageName;
  return stackIcon;
}

SceneItems draw(const WidgetCollectionCard& card, const Rectangle& frame) {
  const WidgetCollectionItem& item = card.collection;
  SceneItems items = drawCard(frame, fallingGradient(frame, widgetPalette::collectionCard));
  append(items, drawFoot(item, frame));
  const WidgetCollectionArtwork artwork{item.imageName, item.systemImageName,
                                        widgetPalette::artwork};
  const Rectangle picture{frame.x, frame.y, frame.width, frame.height - layout::captionHeight};
  items.push_back({drawCentred(artwork.name(), picture, layout::artwork, artwork.accentColor)});
  items.push_back({LinkArea{frame, collectionLink(item.title),
                            item.title.empty() ? item.subtitle : item.title}});
  return items;
}

SceneItems draw(const CollectionGrid& grid, const Rectangle& frame) {
  if (grid.collections.empty()) return drawNoCollections(frame);
  SceneItems items;
  const std::size_t count = std::min(grid.collections.size(), CollectionsEntry::capacity);
  int place = 0;
  for (std::size_t i = 0; i < count; ++i) {
    Rectangle cell = gridCell(frame, tall::columns, layout::rows, tall::gap, place);
    const bool isWide = i == 0 && count % tall::columns != 0;
    if (isWide) cell.width = frame.width;
    place += isWide ? tall::columns : 1;
    append(items, draw(WidgetCollectionCard{grid.collections[i]}, cell));
  }
  return items;
}

Scene drawCollectionsWidget(const CollectionsEntry& entry) {
  const auto size = widgetMetrics::sizeOf(WidgetFamily::extraLargePortrait);
  SceneItems items = draw(ExtraLargeWidgetBackground{});
  append(items, draw(WidgetSectionTitle{localized(titleText), localized("Yours first, then ours")},
                     {tall::margin, tall::margin}, tall::width));
  const double top = tall::margin + widgetMetrics::sectionTitle::contentsY;
  const double bottom = tall::bottom - layout::allRowHeight - tall::gap;
  append(items,
         draw(CollectionGrid{entry.collections}, {tall::margin, top, tall::width, bottom - top}));
  append(items, drawAllRow());
  return {size.width, size.height, localized(titleText), "", std::move(items)};
}

}  // namespace todaychord
