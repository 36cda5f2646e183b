#include "Tonelake/theory/note.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

TEST(Note, IsFoundByItsExactNameOnly) {
  for (const Note note : Note::allCases()) {
    EXPECT_EQ(Note::fromRawValue(note.rawValue()), note) << note.rawValue();
  }
  for (const char* text : {"", "Db", "C#", "c", "H", "C♯♯", "F♭♭♭", " C", "C "}) {
    EXPECT_EQ(Note::fromRawValue(text), std::nullopt) << text;
  }
}

TEST(Note, LeavesTwoOffsetsUnreduced) {
  EXPECT_EQ(Note(Note::Dds).semitoneOffset(), 12);
  EXPECT_EQ(Note(Note::Dsds).semitoneOffset(), 13);
  for (const Note note : Note::allCases()) {
    if (note == Note::Dds || note == Note::Dsds) continue;
    EXPECT_LT(note.semitoneOffset(), 12) << note.rawValue();
  }
}

}  // namespace
}  // namespace tonelake
