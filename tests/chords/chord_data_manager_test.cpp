#include "Tonelake/chords/chord_data_manager.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/printing.h"
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
    for (std::size_t begin = 0; begin <= data.formula.size();) {
      const std::size_t end = std::min(data.formula.find('-', begin), data.formula.size());
      std::string token = data.formula.substr(begin, end - begin);
      begin = end + 1;
      int change = 0;
      for (; token.starts_with("♭"); token.erase(0, std::string("♭").size())) --change;
      for (; token.starts_with("♯"); token.erase(0, std::string("♯").size())) ++change;
      const int degree = std::stoi(token) - 1;
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

TEST(PriorityList, PrefersShapesOfItsChordsOnly) {
  constexpr int openStrings[] = {4, 9, 2, 7, 11, 4};
  EXPECT_THAT(priorityList(), SizeIs(31));
  EXPECT_THAT(preferredFingerings({Note::C, "major", 0}), SizeIs(4));
  EXPECT_THAT(preferredFingerings({Note::C, "major", 1}), IsEmpty());
  EXPECT_THAT(preferredFingerings({Note::Ef, "major", 0}), IsEmpty());
  for (const PriorityEntry& entry : priorityList()) {
    const auto& notes = Chords::getChordData(entry.chord.chordType)->notes;
    for (const Frets& frets : entry.fingerings) {
      for (std::size_t i = 0; i < frets.size(); ++i) {
        if (frets[i] == mutedString) continue;
        const int above = openStrings[i] + frets[i] - entry.chord.rootNote.pitchClass() + 12;
        EXPECT_TRUE(std::any_of(notes.begin(), notes.end(),
                                [=](WholeNumber note) { return (note - above) % 12 == 0; }))
            << ::testing::PrintToString(entry.chord) << ", string " << i;
      }
    }
  }
}

}  // namespace
}  // namespace tonelake
