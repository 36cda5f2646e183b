#pragma once

#include <optional>
#include <string>
#include <vector>

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "Tonelake/foundation/api.h"

// Any thread may draw: texts come from the ports of the process.
namespace todaychord {

/// The picture of a collection.
struct TONELAKE_API WidgetCollectionArtwork {
  std::optional<std::string> imageName;        ///< an image of the app's own
  std::optional<std::string> systemImageName;  ///< an icon
  Color accentColor;                           ///< of icons

  /// The image; where there is none, or none of this name, the system icon; else a stack of music.
  std::string name() const;
};

/// A collection as a card: its picture on a field of its own, title and subtitle on its foot.
struct WidgetCollectionCard {
  WidgetCollectionItem collection;  ///< what the card shows
};

/// Cards in two columns; of an odd number the first is as wide as both.
struct CollectionGrid {
  std::vector<WidgetCollectionItem> collections;  ///< in the order of the cards
};

/// Draws a card into `frame`; the whole of it is a link.
TONELAKE_API SceneItems draw(const WidgetCollectionCard& card, const Rectangle& frame);
/// Draws the cards, or a text where there are none.
TONELAKE_API SceneItems draw(const CollectionGrid& grid, const Rectangle& frame);

/// The collections in their only family, extra-large portrait; as many as the entry's capacity,
/// then the row that leads to all of them.
TONELAKE_API Scene drawCollectionsWidget(const CollectionsEntry& entry);

}  // namespace todaychord
