#pragma once

#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/content/chord_list_category.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/string_table.h"

namespace tonelake {

/// A themed collection of chords.
struct ChordList {
  std::string title;          ///< a few words, translated
  std::string description;    ///< some sentences, translated
  std::string imageName;      ///< an image of the host application, for example "jazz"
  std::vector<Chord> chords;  ///< in display order, all in root position
  /// A pinned fingering, to be shown in place of the generated one: a fret per string, lowest
  /// first, -1 muted. Few chords have one.
  std::unordered_map<Chord, WholeNumbers> preferredPositions;

  friend bool operator==(const ChordList&, const ChordList&) = default;
};

/// Lists by theme, in the order of the themes.
using ChordLists = std::map<ChordListCategory, ChordList>;

/// The 13 curated lists. Five themes have none: popularProgressions, colorfulChords, slashChords,
/// capoFriendly and alternative. Titles and descriptions are in the locale that the process had
/// at the first call; any thread may call.
TONELAKE_API const ChordLists& curatedChordLists();

/// The same lists with the texts of `strings`.
TONELAKE_API ChordLists curatedChordLists(const StringTable& strings);

}  // namespace tonelake
