#include "TodayChordExtension/diagram/fingering_instructions.h"

#include <tuple>

#include <gtest/gtest.h>

namespace todaychord {
namespace {

using tonelake::WholeNumbers;

TEST(FingeringInstructions, SayHowToHoldAShape) {
  const std::vector<std::tuple<WholeNumbers, WholeNumbers, std::vector<std::string>>> cases{
      {{1, 3, 3, 2, 1, 1},
       {1, 3, 4, 2, 1, 1},
       {"Use a barre with your 1st finger at the 1st fret on the 1st string, 2nd string, and 6th "
        "string",
        "Place the 2nd finger on the 2nd fret of the 3rd string",
        "Place the 3rd finger on the 3rd fret of the 5th string",
        "Place the 4th finger on the 3rd fret of the 4th string"}},
      {{-1, -1, 12, 12, -1, 0},
       {0, 0, 1, 1, 0, 0},
       {"Use a barre with your 1st finger at the 12th fret on the 3rd string and 4th string",
        "Let ring the first string in open position", "Mute the second, fifth, and sixth strings"}},
      // A finger of -1 leaves its string out, unless it is muted; 0 does not.
      {{0, -1, 2, 0, 0, 0},
       {-1, -1, 1, 0, -1, 0},
       {"Place the 1st finger on the 2nd fret of the 4th string",
        "Let ring the first and third strings in open positions", "Mute the fifth string"}},
      {{0, 0, 0, 0, 0, 0}, {}, {}},
      {{0, 0, 0, 0, 0, 0, 0}, {0, 0, 0, 0, 0, 0, 0}, {}},
  };
  for (const auto& [position, fingering, sentences] : cases) {
    EXPECT_EQ(fingeringInstructions(position, fingering), sentences)
        << ::testing::PrintToString(position);
  }
}

TEST(FingeringInstructions, WriteOrdinals) {
  const std::pair<tonelake::WholeNumber, const char*> rows[] = {
      {1, "1st"},   {2, "2nd"},   {3, "3rd"},   {4, "4th"},    {11, "11th"},
      {12, "12th"}, {13, "13th"}, {21, "21st"}, {111, "111th"}};
  for (const auto& [number, text] : rows) {
    EXPECT_EQ(ordinal(number), text);
  }
}

}  // namespace
}  // namespace todaychord
