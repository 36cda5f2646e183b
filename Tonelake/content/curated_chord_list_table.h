#pragma once

#include <span>
#include <string_view>

#include "Tonelake/content/chord_list_category.h"
#include "Tonelake/theory/frets.h"
#include "Tonelake/theory/note.h"

namespace tonelake {

/// A curated list as it is written down.
struct CuratedRow {
  ChordListCategory category;
  std::string_view imageName;
  std::string_view titleKey;
  std::string_view descriptionKey;
  std::string_view chords;  ///< for example "C major, A minor 7th": root, blank, chord type
};
std::span<const CuratedRow> curatedRows() noexcept;

/// A chord in root position whose fingering is pinned within one list.
struct PinnedShape {
  ChordListCategory category;
  Note::Case root;
  std::string_view chordType;
  Frets frets;
};
std::span<const PinnedShape> pinnedShapes() noexcept;

}  // namespace tonelake
