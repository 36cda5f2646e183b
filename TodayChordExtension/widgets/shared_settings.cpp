#include "TodayChordExtension/widgets/shared_settings.h"

#include <utility>

#include "TodayChordExtension/widgets/shared_data.h"
#include "TodayChordExtension/widgets/widget_chord_collection_json.h"
#include "Tonelake/chords/chord_json.h"

namespace todaychord {
namespace {

// A list is all there or not at all: what is left of a damaged one would look like the whole.
template <typename Decode>
auto readList(const tonelake::SettingsStore& store, std::string_view key, Decode decode) {
  const std::optional<std::string> data = store.data(key);
  try {
    const json::Value list = parseSharedList(data);
    return json::decodeList(json::Node(list), decode);
  } catch (const json::DecodingError&) {
    return decltype(json::decodeList(std::declval<json::Node>(), decode))();
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
  return readList(*store_, recentlyViewedChordsKey, tonelake::decodeChord);
}

std::vector<WidgetChordCollection> SharedSettings::chordCollections() const {
  return readList(*store_, chordCollectionsKey, decodeWidgetChordCollection);
}

}  // namespace todaychord
