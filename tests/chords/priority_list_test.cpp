#include "Tonelake/chords/priority_list.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::IsEmpty;
using ::testing::SizeIs;

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
