#include "Tonelake/chords/chord_note_numbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tonelake {
namespace {

using ::testing::ElementsAre;

TEST(ChordNoteNumbers, SoundTheFirstFingering) {
  // x32010, an octave low.
  EXPECT_THAT(Chords::getNoteNumbersForChord({Note::C, "major", 0}),
              ElementsAre(36, 40, 43, 48, 52));
  EXPECT_DEATH(Chords::getNoteNumbersForChord({Note::C, "?", 0}), "without a fingering");
}

TEST(ChordNoteNumbers, StackPianoVoicingsUpwards) {
  const auto notes = [](Note root, WholeNumbers formula) {
    return Chords::getChordPianoNotes(root, formula);
  };
  EXPECT_THAT(notes(Note::C, {0, 4, 7}), ElementsAre(48, 52, 55));
  EXPECT_THAT(notes(Note::E, {0, 7, 4, 0}), ElementsAre(40, 47, 56, 64));
  EXPECT_THAT(notes(Note::Dds, {0}), ElementsAre(52));
  EXPECT_THAT(notes(Note::Ds, {12, 0, -24}), ElementsAre(63, 75, 87));
  EXPECT_THAT(notes(Note::C, {Chords::farthestPianoTone}),
              ElementsAre(48 + Chords::farthestPianoTone));
  EXPECT_THAT(notes(Note::C, {}), ::testing::IsEmpty());
  EXPECT_DEATH(notes(Note::C, {INT64_MAX}), "too far");
}

}  // namespace
}  // namespace tonelake
