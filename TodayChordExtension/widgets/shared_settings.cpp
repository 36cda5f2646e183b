#include "TodayChordExtension/widgets/shared_settings.h"

#include <utility>

#include "TodayChordExtension/widgets/shared_data.h"

namespace todaychord {
namespace {

// The list that the key holds, empty for a damaged one.
template <typename Decode>
auto readList(const tonelake::SettingsStore& store, std::string_view key, Decode decode) {
  try {
    return decode(store.data(key));
  } catch (const json::DecodingError&) {
    return decode(std::nullopt);
  }
}

}  // namespace

SharedSettings::SharedSettings(std::shared_ptr<const tonelake::SettingsStore> store)
    : store_(std::move(store)) {}

tonelake::ChordCategory SharedSettings::todayChordCategory() const {
  return tonelake::ChordCategory::fromRawValue(store_->text(todayChordCategoryKey).value_or(""))
      .value_or(tonelake::ChordCategory::beginner);
}

bool SharedSettings::isLeftHanded() const {
  return store_->boolean(leftHandedKey).value_or(false);
}

std::vector<Chord> SharedSettings::recentlyViewedChords() const {
  return readList(*store_, recentlyViewedChordsKey, decodeRecentlyViewedChords);
}

std::vector<WidgetChordCollection> SharedSettings::chordCollections() const {
  return readList(*store_, chordCollectionsKey, decodeChordCollections);
}

}  // namespace todaychord
