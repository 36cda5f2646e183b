#include "Tonelake/chords/chord_dictionary.h"

#include <set>

#include <gtest/gtest.h>

#include "Tonelake/chords/chord_naming.h"
#include "tests/support/many_chords.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

// A name leads back to a chord that sounds the same, bass included.
TEST(ChordDictionary, FindsEveryChordByEveryName) {
  const auto sound = [](const Chord& chord) {
    const auto& notes = Chords::getChordData(chord.chordType)->notes;
    std::set<WholeNumber> tones;
    for (const WholeNumber note : notes) tones.insert((chord.rootNote.pitchClass() + note) % 12);
    const WholeNumber bass = notes[static_cast<std::size_t>(chord.variant)];
    return std::pair(tones, (chord.rootNote.pitchClass() + bass) % 12);
  };
  testing::forEveryChord([&](const Chord& chord) {
    auto names = Chords::getAlternateTitlesForChord(chord);
    names.push_back(Chords::getTitleForChord(chord));
    names.push_back(Chords::getShortestTitleForChord(chord));
    for (const std::string& name : names) {
      const auto found = Chords::lookUpChord(name);
      ASSERT_TRUE(found.has_value()) << name;
      ASSERT_EQ(sound(*found), sound(chord)) << name;
      ASSERT_TRUE(Chords::getChordDictionary().contains(name)) << name;
    }
    const auto byTitle = Chords::lookUpChord(names[names.size() - 2]);
    ASSERT_EQ(*byTitle, chord) << "an exact title belongs to its own chord";
  });
}

TEST(ChordDictionary, SettlesNamesThatTwoChordsClaim) {
  const std::pair<const char*, Chord> rows[] = {
      {"Cm6", {Note::C, "minor 6", 0}},
      {"Cm6/A", {Note::C, "minor 6", 3}},
      {"F#m7b5/E", {Note::Fs, "minor 7th flat 5", 3}},
      {"Bb", {Note::Bf, "major", 0}},
      {"Dbmaj7/C", {Note::Df, "major 7th", 3}},
      {"C half-diminished 7th", {Note::C, "dominant 7th flat 5", 0}},
      {"B/D#", {Note::B, "major", 1}},
  };
  for (const auto& [name, chord] : rows) EXPECT_EQ(Chords::lookUpChord(name), chord) << name;
  for (const char* name : {"", "H", "c", "Cmaj77", "E#", "C/F", "C major "}) {
    EXPECT_EQ(Chords::lookUpChord(name), std::nullopt) << name;
  }
}

}  // namespace
}  // namespace tonelake
