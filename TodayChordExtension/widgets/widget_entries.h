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
  Instant date;                ///< when it was asked for
  std::optional<Chord> chord;  ///< nothing where there is none

  friend bool operator==(const ChordEntry&, const ChordEntry&) = default;
};

/// The chord of the day and its category; the tools are always the same.
struct LauncherEntry {
  Instant date;                ///< when it was asked for
  std::optional<Chord> chord;  ///< nothing where the calendar cannot tell the day
  ChordCategory category = ChordCategory::beginner;  ///< the one that is set

  friend bool operator==(const LauncherEntry&, const LauncherEntry&) = default;
};

/// Chords that the user has viewed, most recent first, filled up with common ones.
struct RecentChordsEntry {
  static constexpr std::size_t capacity = 8;  ///< as many as the widget has cells

  Instant date;               ///< when it was asked for
  std::vector<Chord> chords;  ///< as many as the capacity, each once

  friend bool operator==(const RecentChordsEntry&, const RecentChordsEntry&) = default;
};

/// A collection as a card: one of the user's own or a curated pack.
struct WidgetCollectionItem {
  std::string id;        ///< "user-" and the collection's id, or "curated-" and the category
  std::string title;     ///< of the collection, or of the pack in the user's language
  std::string subtitle;  ///< in the user's language
  std::optional<std::string> imageName;        ///< an image of the app's own
  std::optional<std::string> systemImageName;  ///< a system icon, where there is no image
  std::vector<Chord> chords;                   ///< all of them, in their order
  bool isUserCollection = false;               ///< false for a curated pack

  friend bool operator==(const WidgetCollectionItem&, const WidgetCollectionItem&) = default;
};

/// The user's collections, then curated packs.
struct CollectionsEntry {
  static constexpr std::size_t capacity = 7;  ///< as many as the widget has cards

  Instant date;                                   ///< when it was asked for
  std::vector<WidgetCollectionItem> collections;  ///< as many as the capacity

  friend bool operator==(const CollectionsEntry&, const CollectionsEntry&) = default;
};

}  // namespace todaychord
