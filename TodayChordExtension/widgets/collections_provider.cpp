#include "TodayChordExtension/widgets/collections_provider.h"

#include <utility>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "TodayChordExtension/widgets/widget_text.h"
#include "Tonelake/content/curated_chord_lists.h"

namespace todaychord {
namespace {

using tonelake::ChordListCategory;

// What fills up after the user's own collections, in this order.
constexpr ChordListCategory packs[] = {ChordListCategory::undergroundMusic,
                                       ChordListCategory::jazzChords,
                                       ChordListCategory::bluesChords,
                                       ChordListCategory::folk,
                                       ChordListCategory::metal,
                                       ChordListCategory::country,
                                       ChordListCategory::rock,
                                       ChordListCategory::rnb};

WidgetCollectionItem itemOf(const WidgetChordCollection& collection) {
  return {"user-" + collection.id,
          collection.title,
          localized("Your collection"),
          collection.imageName,
          "square.stack.3d.up.fill",
          collection.chords,
          true};
}

WidgetCollectionItem itemOf(ChordListCategory category) {
  const tonelake::ChordList& list = tonelake::curatedChordLists().at(category);
  return {"curated-" + std::string(category.rawValue()),
          list.title,
          localized("Curated pack"),
          list.imageName,
          std::nullopt,
          list.chords,
          false};
}

// Adds items until there are enough of them.
template <typename Sources>
void addItems(std::vector<WidgetCollectionItem>& items, const Sources& sources) {
  for (const auto& source : sources) {
    if (items.size() == CollectionsEntry::capacity) return;
    items.push_back(itemOf(source));
  }
}

std::vector<WidgetCollectionItem> chooseItems(const std::vector<WidgetChordCollection>& own) {
  std::vector<WidgetCollectionItem> items;
  addItems(items, own);
  addItems(items, packs);
  return items;
}

}  // namespace

CollectionsProvider::CollectionsProvider(WidgetSources sources) : sources_(std::move(sources)) {}

CollectionsEntry CollectionsProvider::placeholder() const {
  return {sources_.calendar->now(), chooseItems({})};
}

void CollectionsProvider::getTimeline(
    const std::function<void(Timeline<CollectionsEntry>)>& completion) const {
  const auto own = SharedSettings(sources_.settings).chordCollections();
  completion({{{sources_.calendar->now(), chooseItems(own)}}, TimelineReloadPolicy::never()});
}

}  // namespace todaychord
