#include "Tonelake/content/curated_chord_lists.h"

#include "Tonelake/content/curated_chord_list_table.h"
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

// "C♯ minor 7th" is C♯ and "minor 7th": only the first blank parts root and type.
Chord readChord(std::string_view text) {
  const std::size_t blank = text.find(' ');
  const auto root = Note::fromRawValue(text.substr(0, blank));
  if (!root || blank == std::string_view::npos) {
    stopWithProgrammingError("a curated list names a chord without a root or a type");
  }
  return {*root, std::string(text.substr(blank + 1)), 0};
}

std::vector<Chord> readChords(std::string_view text) {
  std::vector<Chord> chords;
  for (std::string_view piece : split(text, ',')) {
    if (piece.starts_with(' ')) piece.remove_prefix(1);
    chords.push_back(readChord(piece));
  }
  return chords;
}

}  // namespace

const ChordLists& curatedChordLists() {
  static const ChordLists lists = curatedChordLists(*processPlatform().strings);
  return lists;
}

ChordLists curatedChordLists(const StringTable& strings) {
  ChordLists lists;
  for (const CuratedRow& row : curatedRows()) {
    lists.emplace(row.category, ChordList{strings.localized(row.titleKey),
                                          strings.localized(row.descriptionKey),
                                          std::string(row.imageName),
                                          readChords(row.chords),
                                          {}});
  }
  for (const PinnedShape& shape : pinnedShapes()) {
    lists.at(shape.category)
        .preferredPositions.emplace(Chord{shape.root, std::string(shape.chordType), 0},
                                    WholeNumbers(shape.frets.begin(), shape.frets.end()));
  }
  return lists;
}

}  // namespace tonelake
