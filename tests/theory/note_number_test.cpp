#include "Tonelake/theory/note_number.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

TEST(NoteNumber, IsSpelledWithSharps) {
  const std::pair<WholeNumber, std::optional<NoteAndOctave>> rows[] = {
      {12, {{Note::C, 0}}}, {70, {{Note::As, 4}}},   {127, {{Note::G, 9}}}, {128, {}}, {-1, {}},
      {INT64_MIN, {}},      {1099511627776 + 60, {}}};
  for (const auto& [number, expected] : rows) EXPECT_EQ(getNote(number), expected) << number;
}

TEST(NoteNumberDeathTest, StopsBelowTheFirstOctave) {
  EXPECT_DEATH(getNote(11), "0 to 11");
}

}  // namespace
}  // namespace tonelake
