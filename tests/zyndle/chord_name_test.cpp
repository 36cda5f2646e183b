#include "zyndle/chord_name.h"

#include <algorithm>
#include <cctype>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/printing.h"

namespace zyndle {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using tonelake::Chord;
using tonelake::Note;

TEST(ChordName, ReadsWhatPlayersType) {
  const std::pair<const char*, Chord> rows[] = {
      {"Am7", {Note::A, "minor 7th", 0}},
      {"  C   major  7th ", {Note::C, "major 7th", 0}},
      {"CMAJ7", {Note::C, "major 7th", 0}},
      {"CM7", {Note::C, "major 7th", 0}},
      {"C-7", {Note::C, "minor 7th", 0}},
      {"bb7", {Note::Bf, "dominant 7th", 0}},
      {"bm", {Note::B, "minor", 0}},
      {"f#m7b5", {Note::Fs, "minor 7th flat 5", 0}},
      {"F# Half-diminished Minor 7th", {Note::Fs, "minor 7th flat 5", 0}},
      {"Bø7", {Note::B, "minor 7th flat 5", 0}},
      {"Cmin/maj7", {Note::C, "minor major 7th", 0}},
      {"CΔ", {Note::C, "major 7th", 0}},
      {"E°7", {Note::E, "diminished 7th", 0}},
      {"e-flat major", {Note::Ef, "major", 0}},
      {"F sharp minor 7 flat 5", {Note::Fs, "minor 7th flat 5", 0}},
      {"E suspended 4", {Note::E, "suspended 4th", 0}},
      {"Dm(add9)", {Note::D, "minor add 9", 0}},
      {"C6/9", {Note::C, "6 add 9", 0}},
      {"C7 (b9)", {Note::C, "dominant 7th flat 9th", 0}},
      {"C / E", {Note::C, "major", 1}},
      {"a minor 7th / C", {Note::A, "minor 7th", 1}},
      {"D/Gb", {Note::D, "major", 1}},
      {"C7/A#", {Note::C, "dominant 7th", 3}},
  };
  for (const auto& [typed, chord] : rows) {
    SCOPED_TRACE(typed);
    const ParsedChordName parsed = parseChordName(typed);
    EXPECT_EQ(parsed.problem, "");
    EXPECT_EQ(parsed.chord, chord);
  }
}

TEST(ChordName, TellsWhatIsWrong) {
  const std::pair<std::string, const char*> rows[] = {
      {"", "is empty"},
      {"C#maj77", "\"C#maj77\"; the nearest are C♯ major 7th"},
      {"Hm7", "A minor 7th, B minor 7th"},
      {"🎸", "look like"},
      {"C/D", "C major has no D to put in the bass; its notes are C, E, G"},
      {"C/E/G", "no chord is named"},
      {"\xff\xfe", "not valid UTF-8"},
      {std::string(100000, 'C'), "CCC...\""},
  };
  for (const auto& [typed, problem] : rows) {
    SCOPED_TRACE(typed.substr(0, 40));
    const ParsedChordName parsed = parseChordName(typed);
    EXPECT_EQ(parsed.chord, std::nullopt);
    EXPECT_THAT(parsed.problem, AllOf(HasSubstr(problem), Not(HasSubstr("\n"))));
  }
}

// Leniency must not turn one chord into another: whatever the dictionary calls a chord, a small
// root and missing blanks still give that chord or one that shares the name.
TEST(ChordName, NoNameChangesItsChordByBeingTypedCarelessly) {
  const auto& manager = tonelake::ChordDataManager::shared();
  for (const auto& [name, chord] : manager.chordDictionary()) {
    std::string careless = name;
    careless.front() = static_cast<char>(std::tolower(careless.front()));
    EXPECT_EQ(parseChordName(careless).chord, chord) << careless;
    if (name.find("half-") != std::string::npos) continue;  // known in one writing only
    const std::optional<Chord> plain = parseChordName(plainChordName(name)).chord;
    ASSERT_TRUE(plain) << name << " as " << plainChordName(name);
    EXPECT_EQ(manager.chordData(plain->chordType)->notes, manager.chordData(chord.chordType)->notes)
        << name << " as " << plainChordName(name);
    EXPECT_EQ(plain->rootNote, chord.rootNote) << name;
    EXPECT_EQ(plain->variant, chord.variant) << name;
  }
}

}  // namespace
}  // namespace zyndle
