#include "Tonelake/theory/interval.h"

#include <tuple>

#include <gtest/gtest.h>

namespace tonelake {
namespace {

TEST(Interval, SpellsByTheLetterOfTheDegree) {
  const std::tuple<WholeNumber, WholeNumber, const char*, const char*> rows[] = {
      {4, 3, "C", "E"},       {3, 3, "A", "C"},   {3, 3, "E♭", "G♭"},  {6, 5, "C", "G♭"},
      {9, 7, "C", "B♭♭"},     {4, 3, "G♯", "B♯"}, {1, 2, "C♭", "D♭♭"}, {4, 3, "D♭", "F"},
      {4, 3, "C♯", "E♯"},     {21, 13, "C", "A"}, {24, 15, "B", "B"},  {10, 7, "C", "B♭"},
      {0, 1, "D♭♭♭", "D♭♭♭"}, {0, 0, "D", "C𝄪"},  {7, 3, "C", ""},     {4, 3, "Db", ""},
      {4, 3, "c", ""},        {4, 3, "", ""},     {-1, 7, "D", "C♯"},  {3, 4000000000, "C", "E♭"},
  };
  for (const auto& [distance, degree, root, expected] : rows) {
    EXPECT_EQ(Interval::getNoteWithDistance(distance, degree, root), expected)
        << distance << " semitones, degree " << degree << " above " << root;
  }
}

TEST(Interval, TellsWhatMayBeAsked) {
  const std::tuple<WholeNumber, WholeNumber, const char*, bool> rows[] = {
      {35, 1, "C", true},         {36, 1, "C", false},        {24, 1, "B", true},
      {25, 1, "B", false},        {-11, 1, "B", true},        {-1, 1, "C", false},
      {4, 0, "C", false},         {4, 0, "D", true},          {4, -1, "D", false},
      {4, 3, "Db", true},         {INT64_MAX, 3, "C", false}, {INT64_MIN, 3, "B", false},
      {4, INT64_MAX, "B", false}, {4, INT64_MIN, "C", false},
  };
  for (const auto& [distance, degree, root, isSpellable] : rows) {
    EXPECT_EQ(Interval::isSpellable(distance, degree, root), isSpellable)
        << distance << " semitones, degree " << degree << " above " << root;
  }
}

TEST(IntervalDeathTest, StopsOutsideTheTables) {
  EXPECT_DEATH(Interval::getNoteWithDistance(36, 1, "C"), "outside the spelling tables");
  EXPECT_DEATH(Interval::getNoteWithDistance(4, 0, "C"), "outside the spelling tables");
}

TEST(Interval, NamesFormulaTokens) {
  const std::pair<const char*, const char*> rows[] = {{"♭♭7", "Diminished Seventh"},
                                                      {"♭12", "Diminished Twelfth"},
                                                      {"15", "Double Octave"},
                                                      {"♯14", "Augmented Fourteenth"},
                                                      {"♭4", ""},
                                                      {"b3", ""},
                                                      {"", ""}};
  for (const auto& [token, name] : rows) {
    EXPECT_EQ(Interval::getIntervalFromAlteredScaleDegree(token), name) << token;
  }
}

}  // namespace
}  // namespace tonelake
