#include "Tonelake/content/curated_chord_lists.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/printing.h"
#include "tests/support/shouting.h"

namespace tonelake {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

const Chord lowE{Note::E, "5", 0};

TEST(CuratedChordLists, HoldOnlyDifferentPlayableChords) {
  ASSERT_THAT(curatedChordLists(), SizeIs(13));
  for (const auto& [category, list] : curatedChordLists()) {
    EXPECT_THAT(list.title, Not(IsEmpty())) << category.rawValue();
    EXPECT_THAT(list.imageName, Not(IsEmpty())) << category.rawValue();
    EXPECT_TRUE(isValidUtf8(list.title + list.description)) << category.rawValue();
    for (const Chord& chord : list.chords) {
      EXPECT_FALSE(Chords::getChordPositions(chord, 1, Tuning::standard).empty())
          << category.rawValue() << ": " << ::testing::PrintToString(chord);
      EXPECT_EQ(std::count(list.chords.begin(), list.chords.end(), chord), 1)
          << category.rawValue() << ": " << ::testing::PrintToString(chord);
    }
    for (const auto& [chord, frets] : list.preferredPositions) {
      EXPECT_THAT(list.chords, ::testing::Contains(chord)) << category.rawValue();
      EXPECT_THAT(frets, SizeIs(Tuning::stringCount)) << category.rawValue();
    }
  }
}

TEST(CuratedChordLists, PinAFingeringInOneListOnly) {
  const ChordLists& lists = curatedChordLists();
  EXPECT_EQ(lists.at(ChordListCategory::metal).preferredPositions.at(lowE),
            (WholeNumbers{0, 2, 2, -1, -1, -1}));
  EXPECT_THAT(lists.at(ChordListCategory::powerChords).chords, ::testing::Contains(lowE));
  EXPECT_THAT(lists.at(ChordListCategory::powerChords).preferredPositions, IsEmpty());
}

TEST(CuratedChordLists, SpeakTheLanguageTheyAreGiven) {
  const ChordLists shouted = curatedChordLists(testing::Shouting());
  for (const auto& [category, list] : curatedChordLists()) {
    EXPECT_EQ(shouted.at(category).title, list.title + "!");
    EXPECT_EQ(shouted.at(category).description, list.description + "!");
    EXPECT_EQ(shouted.at(category).imageName, list.imageName);
    EXPECT_EQ(shouted.at(category).chords, list.chords);
  }
}

TEST(CuratedChordLists, HaveCategoriesOfExactNames) {
  EXPECT_THAT(ChordListCategory::allCases(), SizeIs(18));
  for (const ChordListCategory category : ChordListCategory::allCases()) {
    EXPECT_EQ(ChordListCategory::fromRawValue(category.rawValue()), category);
  }
  for (const char* other : {"", "Rock", "jazz", "rnb "}) {
    EXPECT_EQ(ChordListCategory::fromRawValue(other), std::nullopt) << other;
  }
  EXPECT_FALSE(curatedChordLists().contains(ChordListCategory::slashChords));
}

}  // namespace
}  // namespace tonelake
