#include "Tonelake/fingering/finger_assignment.h"

#include <cstdint>
#include <limits>
#include <thread>

#include <gmock/gmock.h>

#include "tests/support/finger_checker.h"

namespace tonelake {
namespace {

using testing::brokenFingerRule;
using ::testing::ElementsAreArray;
using ::testing::PrintToString;

// What teachers show. F, Bm and their like have both strings two frets up under the ring finger.
TEST(FingerAssignment, GivesWellKnownShapesTheirFingers) {
  struct Row {
    const char* name;
    WholeNumbers frets;
    WholeNumbers fingers;
  };
  // clang-format off
  const Row rows[] = {
      {"C",               {-1, 3, 2, 0, 1, 0},    {0, 3, 2, 0, 1, 0}},
      {"G",               {3, 2, 0, 0, 0, 3},     {2, 1, 0, 0, 0, 3}},
      {"G, two above",    {3, 2, 0, 0, 3, 3},     {2, 1, 0, 0, 3, 4}},
      {"E",               {0, 2, 2, 1, 0, 0},     {0, 2, 3, 1, 0, 0}},
      {"Em",              {0, 2, 2, 0, 0, 0},     {0, 1, 2, 0, 0, 0}},
      {"A",               {-1, 0, 2, 2, 2, 0},    {0, 0, 1, 1, 1, 0}},
      {"Am",              {-1, 0, 2, 2, 1, 0},    {0, 0, 2, 3, 1, 0}},
      {"D",               {-1, -1, 0, 2, 3, 2},   {0, 0, 0, 1, 3, 2}},
      {"Dm7",             {-1, -1, 0, 2, 1, 1},   {0, 0, 0, 2, 1, 1}},
      {"F",               {1, 3, 3, 2, 1, 1},     {1, 3, 3, 2, 1, 1}},
      {"Fm, tenth fret",  {10, 12, 12, 10, 10, 10}, {1, 3, 3, 1, 1, 1}},
      {"Bm",              {-1, 2, 4, 4, 3, 2},    {0, 1, 3, 3, 2, 1}},
      {"B",               {-1, 2, 4, 4, 4, 2},    {0, 1, 2, 3, 4, 1}},
      {"B7",              {-1, 2, 1, 2, 0, 2},    {0, 2, 1, 3, 0, 4}},
      {"C7",              {-1, 3, 2, 3, 1, 0},    {0, 3, 2, 4, 1, 0}},
      {"G7 barre",        {3, 5, 3, 4, 3, 3},     {1, 3, 1, 2, 1, 1}},
      {"C7 barre",        {-1, 3, 5, 3, 5, 3},    {0, 1, 3, 1, 4, 1}},
      {"Cmaj7 barre",     {-1, 3, 5, 4, 5, 3},    {0, 1, 3, 2, 4, 1}},
      {"Amaj7",           {-1, 0, 2, 1, 2, 0},    {0, 0, 2, 1, 3, 0}},
      {"C9",              {-1, 3, 2, 3, 3, 3},    {0, 2, 1, 3, 3, 3}},
      {"Bm7(♭5)",         {-1, 2, 3, 2, 3, -1},   {0, 1, 3, 2, 4, 0}},
      {"Em7(♭5)",         {-1, -1, 2, 3, 3, 3},   {0, 0, 1, 2, 2, 2}},
      {"Edim7",           {-1, -1, 2, 3, 2, 3},   {0, 0, 1, 3, 2, 4}},
      {"C6",              {-1, 3, 5, 5, 5, 5},    {0, 1, 3, 3, 3, 3}},
      {"Caug, open e",    {-1, 3, 2, 1, 1, 0},    {0, 4, 3, 1, 2, 0}},
      {"Caug",            {-1, 3, 2, 1, 1, -1},   {0, 3, 2, 1, 1, 0}},
      {"Gm11",            {3, 3, 3, 3, 3, 5},     {1, 1, 1, 1, 1, 4}},
      {"Gm7, x inside",   {3, -1, 3, 3, 3, -1},   {1, 0, 2, 3, 4, 0}},
      {"G5, spread",      {3, -1, -1, -1, -1, 6}, {1, 0, 0, 0, 0, 4}},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_THAT(assignFingers(row.frets), ElementsAreArray(row.fingers)) << row.name;
  }
}

TEST(FingerAssignment, TakesAnyFretsWithoutLosingWhatCanBeHeld) {
  constexpr WholeNumber most = std::numeric_limits<WholeNumber>::max();
  constexpr WholeNumber least = std::numeric_limits<WholeNumber>::min();
  struct Row {
    const char* what;
    WholeNumbers frets;
    WholeNumbers fingers;
  };
  // clang-format off
  const Row rows[] = {
      {"nothing pressed",    {-1, 0, 0, 0, 0, -1},               {}},
      {"all muted",          {-1, -1, -1, -1, least, -7},        {}},
      {"muted, not open",    {-1, 3, 2, 1, 1, least},            {0, 3, 2, 1, 1, 0}},
      {"too few strings",    {1, 3, 3, 2, 1},                    {}},
      {"too many strings",   {1, 3, 3, 2, 1, 1, 1},              {}},
      {"no strings",         {},                                 {}},
      {"far up the neck",    {256, 258, 258, 257, 256, 256},     {1, 3, 3, 2, 1, 1}},
      {"the highest frets",  {least, most, most - 1, 0, -1, 0},  {0, 2, 1, 0, 0, 0}},
      {"five frets",         {1, -1, -1, -1, -1, 5},             {1, 0, 0, 0, 0, 0}},
      {"all the frets",      {1, 2, 3, 4, 5, 257},               {1, 2, 3, 4, 0, 0}},
      {"five fingers",       {1, 0, 1, 0, 1, 2},                 {1, 0, 2, 0, 3, 4}},
      {"six fingers",        {1, 0, 1, 2, 1, 2},                 {1, 0, 2, 4, 3, 0}},
  };
  // clang-format on
  for (const Row& row : rows) {
    EXPECT_THAT(assignFingers(row.frets), ElementsAreArray(row.fingers)) << row.what;
  }
}

// Whether any list of fingers at all breaks no rule.
bool canBeHeld(const Frets& frets, FingerRules rules, Fingers fingers = {}, std::size_t from = 0) {
  while (from < frets.size() && frets[from] <= 0) ++from;
  if (from == frets.size()) return brokenFingerRule(frets, fingers, rules).empty();
  for (std::int8_t finger = 1; finger <= 4; ++finger) {
    fingers[from] = finger;
    if (canBeHeld(frets, rules, fingers, from + 1)) return true;
  }
  return false;
}

class EveryShape : public ::testing::TestWithParam<bool> {};
INSTANTIATE_TEST_SUITE_P(FingerAssignment, EveryShape, ::testing::Bool());

// Over the shapes of the frets 1 to 4 with open and muted strings. Wherever the hand stands, its
// fingers are the same; one fret further apart, nobody can hold them.
TEST_P(EveryShape, BreaksNoRuleAndFindsFingersWheneverThereAreSome) {
  const FingerRules rules{GetParam()};
  constexpr int statesPerString = 6;
  constexpr int shapes = 6 * 6 * 6 * 6 * 6 * 6;
  constexpr int step = 11;  // has no factor in common with 6, so no string keeps a state
  for (int number = 0; number < shapes; number += step) {
    Frets frets{};
    Frets fartherUp{};
    int rest = number;
    for (std::size_t s = 0; s < frets.size(); ++s, rest /= statesPerString) {
      frets[s] = static_cast<std::int8_t>(rest % statesPerString - 1);
      fartherUp[s] = static_cast<std::int8_t>(frets[s] > 0 ? frets[s] + 9 : frets[s]);
    }
    const auto fingers = findFingers(frets, rules);
    if (fingers) {
      EXPECT_EQ(brokenFingerRule(frets, *fingers, rules), "")
          << PrintToString(frets) << " with " << PrintToString(*fingers);
    }
    EXPECT_EQ(fingers.has_value(), canBeHeld(frets, rules)) << PrintToString(frets);
    EXPECT_EQ(findFingers(fartherUp, rules), fingers) << PrintToString(fartherUp);
  }
}

TEST(FingerAssignment, MayLayABarreAcrossAMutedString) {
  const Frets frets{8, -1, 10, 9, 10, 8};
  EXPECT_EQ(findFingers(frets), std::nullopt);
  EXPECT_EQ(findFingers(frets, {.barreMayCoverMuted = true}), (Fingers{1, 0, 3, 2, 4, 1}));
}

// Threads that meet the same shapes for the first time, in opposite orders.
TEST(FingerAssignment, IsTheSameFromManyThreads) {
  const auto fingersOfAll = [](int first, int step) {
    std::vector<std::optional<Fingers>> all(625);
    for (int n = first; n >= 0 && n < 625; n += step) {
      const auto fret = [n](int place) { return static_cast<std::int8_t>(n / place % 5); };
      all[static_cast<std::size_t>(n)] =
          findFingers({-1, fret(1), fret(5), fret(25), fret(125), 4});
    }
    return all;
  };
  std::vector<std::optional<Fingers>> upwards;
  std::thread other([&] { upwards = fingersOfAll(0, 1); });
  const auto downwards = fingersOfAll(624, -1);
  other.join();
  EXPECT_EQ(upwards, downwards);
}

}  // namespace
}  // namespace tonelake
