#include "Tonelake/chords/chord_data_manager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/foundation/text.h"
#include "tests/support/recording_diagnostics.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::StartsWith;

TEST(ChordDataManager, ReadsTheDictionaryAsItStands) {
  const ChordDataManager& manager = ChordDataManager::shared();
  EXPECT_THAT(manager.chordData(), SizeIs(49));
  EXPECT_EQ(manager.chordData("Major"), nullptr);
  EXPECT_EQ(manager.chordData("major")->shortTitle, "maj");
  EXPECT_THAT(manager.chordData("major")->otherNames, ElementsAre("", "M"));
  EXPECT_THAT(manager.chordData("suspended 4th")->otherNames, IsEmpty());
  EXPECT_THAT(manager.chordData("dominant 7th flat 5")->otherNames,
              ElementsAre("dom7♭5", " half-diminished 7th"));
  EXPECT_FALSE(manager.chordData("6 add 9")->includesSpace);
}

TEST(ChordDataManager, ListsTypesInDisplayOrder) {
  ASSERT_THAT(chordTypes(), SizeIs(49));
  EXPECT_THAT(std::vector(chordTypes().begin(), chordTypes().begin() + 8),
              ElementsAre("major", "minor", "dominant 7th", "major 7th", "minor 7th",
                          "minor major 7th", "5", "suspended 4th"));
  EXPECT_EQ(chordTypes().back(), "diminished 7th");
}

// The semitones of a type are what its formula says, whichever was mistyped.
TEST(ChordDataManager, HasFormulasThatMatchTheirSemitones) {
  const int majorScale[] = {0, 2, 4, 5, 7, 9, 11};
  for (const auto& [title, data] : ChordDataManager::shared().chordData()) {
    WholeNumbers expected;
    for (const std::string_view token : split(data.formula, '-')) {
      int change = 0;
      for (const std::string_view sign : splitCharacters(token)) {
        change += sign == "♯" ? 1 : sign == "♭" ? -1 : 0;
      }
      const int degree = std::stoi(replaceAll(replaceAll(token, "♭", ""), "♯", "")) - 1;
      expected.push_back(majorScale[degree % 7] + 12 * (degree / 7) + change);
    }
    EXPECT_EQ(data.notes, expected) << title;
  }
}

TEST(ChordDataManager, IsEmptyWhenItsTextCannotBeRead) {
  for (
      const char* text :
      {"", "{", "[]", R"({"chords":[]})", R"({"chords":{"major":{"short":"maj"}}})",
       R"({"chords":{"x":{"short":"x","other_names":"","notes":[0.5],"formula":"1","prefix_space":1}}})",
       R"({"chords":{"x":{"short":"x","other_names":"","notes":[],"formula":"","prefix_space":1}}})",
       R"({"chords":{"x":{"short":"x","other_names":"","notes":[0],"formula":"1-3","prefix_space":1}}})",
       R"({"chords":{"x":{"short":"x","other_names":"","notes":[0],"formula":"99999999999999999999","prefix_space":1}}})",
       R"({"chords":{"x":{"short":"x","other_names":"","notes":[25],"formula":"1","prefix_space":1}}})"}) {
    testing::RecordingDiagnostics diagnostics;
    const ChordDataManager manager(text, diagnostics);
    EXPECT_THAT(manager.chordData(), IsEmpty()) << text;
    EXPECT_THAT(manager.chordDictionary(), IsEmpty()) << text;
    EXPECT_THAT(diagnostics.lines(), ElementsAre(StartsWith("Failed to parse JSON:"))) << text;
  }
}

}  // namespace
}  // namespace tonelake
