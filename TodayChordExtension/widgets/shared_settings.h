#pragma once

#include <cstddef>
#include <memory>
#include <string_view>
#include <vector>

#include "TodayChordExtension/widgets/widget_chord_collection.h"
#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/settings_store.h"
#include "Tonelake/today/chord_category.h"

namespace todaychord {

// Keys of what the app leaves for its widgets. Stored by others: do not change.
inline constexpr std::string_view todayChordCategoryKey = "todayChordCategory";      ///< text
inline constexpr std::string_view leftHandedKey = "left_handed";                     ///< bool
inline constexpr std::string_view recentlyViewedChordsKey = "recentlyViewedChords";  ///< data
inline constexpr std::string_view chordCollectionsKey = "chordCollections";          ///< data

/// A data value of more bytes counts as damaged. A widget has little memory, and no user comes
/// near: this is room for 10,000 chords.
inline constexpr std::size_t largestSharedData = std::size_t{1} << 20U;

/// Reads the store that app and widgets share. Whatever the store holds, reading never fails: a
/// value that is missing, damaged or of the wrong type gives its default. Any thread may read.
class TONELAKE_API SharedSettings {
 public:
  /// Reads `store`, which is not null, at every question anew.
  explicit SharedSettings(std::shared_ptr<const tonelake::SettingsStore> store);

  /// The category of the chord of the day; beginner unless a known one is set.
  tonelake::ChordCategory todayChordCategory() const;

  /// Whether diagrams are mirrored; false by default.
  bool isLeftHanded() const;

  /// Most recent first, as the app stored them: chords may repeat, and their type or variant need
  /// not exist.
  std::vector<Chord> recentlyViewedChords() const;

  /// The user's own collections.
  std::vector<WidgetChordCollection> chordCollections() const;

 private:
  std::shared_ptr<const tonelake::SettingsStore> store_;
};

}  // namespace todaychord
