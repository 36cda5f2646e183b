#include "Tonelake/chords/chord_spelling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_intervals.h"
#include "tests/support/many_chords.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;

TEST(ChordSpelling, SpellsEveryChordByItsDegrees) {
  const std::pair<Chord, std::vector<std::string>> rows[] = {
      {{Note::C, "diminished 7th", 2}, {"C", "E♭", "G♭", "B♭♭"}},
      {{Note::Ef, "minor", 0}, {"E♭", "G♭", "B♭"}},
      {{Note::Gs, "major", 0}, {"G♯", "B♯", "D♯"}},
      {{Note::Cs, "augmented", 0}, {"C♯", "E♯", "G𝄪"}},
      {{Note::C, "dominant 7th add 13", 0}, {"C", "E", "G", "B♭", "A"}},
      {{Note::C, "", 0}, {}}};
  for (const auto& [chord, tones] : rows) {
    EXPECT_EQ(Chords::getNotesOfChord(chord), tones) << ::testing::PrintToString(chord);
  }
  testing::forEveryChord([](const Chord& chord) {
    const auto& semitones = Chords::getChordData(chord.chordType)->notes;
    const auto tones = Chords::getNotesOfChord(chord);
    ASSERT_EQ(tones.size(), semitones.size());
    for (std::size_t i = 0; i < tones.size(); ++i) {
      const auto note = Note::fromRawValue(tones[i]);
      ASSERT_TRUE(note.has_value()) << tones[i] << " in " << ::testing::PrintToString(chord);
      EXPECT_EQ(note->pitchClass(), (chord.rootNote.pitchClass() + semitones[i]) % 12);
    }
  });
}

TEST(ChordSpelling, BeginsIntervalsWithTheBass) {
  const Chord root{Note::C, "major", 0};
  EXPECT_THAT(Chords::getIntervalsOfChord(root),
              ElementsAre("Unison", "Major Third", "Perfect Fifth"));
  for (const WholeNumber variant : {1, 4, -2}) {
    EXPECT_THAT(Chords::getIntervalsOfChordForToday({Note::C, "major", variant}),
                ElementsAre("Major Third", "Perfect Fifth", "Root"))
        << variant;
  }
  EXPECT_THAT(Chords::getIntervalsOfChord({Note::C, "?", 0}), ::testing::IsEmpty());
  testing::forEveryChord([](const Chord& chord) {
    EXPECT_THAT(Chords::getIntervalsOfChord(chord), ::testing::Not(::testing::Contains("")))
        << ::testing::PrintToString(chord);
  });
}

}  // namespace
}  // namespace tonelake
