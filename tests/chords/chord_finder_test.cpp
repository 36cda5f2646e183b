#include <algorithm>
#include <optional>

#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/spelling_tables.h"
#include "tests/support/plain_chord_finder.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

const ChordDataManager& manager = ChordDataManager::shared();

TEST(ChordFinder, ReadsNotesAsTheyAreTyped) {
  struct Row {
    const char* notes;
    std::vector<Chord> exact;
    std::optional<Chord> best;
  };
  const Chord major{Note::C, "major", 0};
  const Chord minor{Note::C, "minor", 0};
  const Chord power{Note::C, "5", 0};
  const Chord seventh{Note::C, "dominant 7th", 0};
  const Row rows[] = {
      {"E, G, C", {{Note::C, "major", 1}}, major},
      {"C,E,G", {major}, major},
      {",C,,E,G,", {major}, major},
      {"C,E,G,C", {}, major},
      {"C,E,G,B♯", {}, major},
      {"C,E,G, ", {}, major},
      {"c, eb, g", {minor}, minor},
      {" C\n,\tEB\r,\u00A0g ", {minor}, minor},
      {"bb,d,f", {{Note::As, "major", 0}, {Note::Bf, "major", 0}}, Chord{Note::As, "major", 0}},
      {"f#,A#,C♯", {{Note::Fs, "major", 0}, {Note::Gf, "major", 0}}, Chord{Note::Fs, "major", 0}},
      {"D♭♭,E♯,g",
       {{Note::C, "suspended 4th", 0}, {Note::F, "suspended 2nd", 2}},
       Chord{Note::F, "suspended 2nd", 0}},
      {"C,X,G", {}, power},
      {"X,C,G", {}, power},
      {"C, E, B♭", {}, seventh},
      {"C", {}, std::nullopt},
      {"dbb,ff,h", {}, std::nullopt},
      {"", {}, std::nullopt},
      {"\xff,♭,\u00A0", {}, std::nullopt},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.notes);
    EXPECT_EQ(manager.findChordsExact(row.notes), row.exact);
    const auto matching = manager.findChordsMatching(row.notes);
    EXPECT_EQ(matching.empty() ? std::nullopt : std::optional(matching.front()), row.best);
  }
}

// Every set of two to five pitches, each in some spelling and from some bass.
TEST(ChordFinder, AgreesWithThePlainRules) {
  const testing::PlainChordFinder plain;
  std::size_t spelling = 0;
  for (unsigned set = 0; set < 1U << 12U; ++set) {
    std::vector<std::string> names;
    for (std::size_t pitch = 0; pitch < 12; ++pitch) {
      if ((set >> pitch & 1U) == 0) continue;
      names.emplace_back((*spellingTables[++spelling % spellingTables.size()])[pitch]);
    }
    if (names.size() < 2 || names.size() > 5) continue;
    std::rotate(names.begin(), names.begin() + static_cast<int>(set % names.size()), names.end());
    std::string notes;
    for (const std::string& name : names) notes += name + ",";
    ASSERT_EQ(manager.findChordsExact(notes), plain.findExact(notes)) << notes;
    ASSERT_EQ(manager.findChordsMatching(notes), plain.findMatching(notes)) << notes;
  }
}

}  // namespace
}  // namespace tonelake
