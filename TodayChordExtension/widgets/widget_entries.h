#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/platform/instant.h"
#include "Tonelake/today/chord_category.h"

namespace todaychord {

using tonelake::Chord;
using tonelake::ChordCategory;
using tonelake::Instant;

// What the widgets show, each from its `date` on. Chords that come out of the settings need not be
// showable (see Chords::isShowable): views check before they title or draw one.

/// The chord of the day; no chord where the calendar cannot tell the day.
struct ChordEntry {
  Instant date;
  std::optional<Chord> chord;

  friend bool operator==(const ChordEntry&, const ChordEntry&) = default;
};

struct LauncherEntry {
  Instant date;
  std::optional<Chord> chord;
  ChordCategory category = ChordCategory::beginner;

  friend bool operator==(const LauncherEntry&, const LauncherEntry&) = default;
};

struct RecentChordsEntry {
  static constexpr std::size_t capacity = 8;

  Instant date;
  std::vector<Chord> chords;  ///< as many as the capacity, each once

  friend bool operator==(const RecentChordsEntry&, const RecentChordsEntry&) = default;
};

/// A collection as a card: one of the user's own or a curated pack.
struct WidgetCollectionItem {
  std::string id;  ///< "user-" and the collection's id, or "curated-" and the category
  std::string title;
  std::string subtitle;
  std::optional<std::string> imageName;        ///< an image of the app's own
  std::optional<std::string> systemImageName;  ///< a system icon, where there is no image
  std::vector<Chord> chords;
  bool isUserCollection = false;

  friend bool operator==(const WidgetCollectionItem&, const WidgetCollectionItem&) = default;
};

struct CollectionsEntry {
  static constexpr std::size_t capacity = 7;

  Instant date;
  std::vector<WidgetCollectionItem> collections;  ///< as many as the capacity

  friend bool operator==(const CollectionsEntry&, const CollectionsEntry&) = default;
};

}  // namespace todaychord
