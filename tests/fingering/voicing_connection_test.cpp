#include "Tonelake/fingering/voicing_connection.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/named_chord.h"
#include "tests/support/printing.h"

namespace tonelake::Voicings {
namespace {

using testing::chordNamed;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

std::vector<Chord> chordsNamed(std::string_view names) {
  std::vector<Chord> chords;
  for (const std::string_view name : split(names, ' ')) chords.push_back(chordNamed(name));
  return chords;
}

// The way that the fingers go, each on its lowest string: frets and strings from one place to the
// next, and one step for a finger that is lifted or put down.
int movement(const std::vector<Voicing>& row) {
  int steps = 0;
  for (std::size_t i = 1; i < row.size(); ++i) {
    for (int finger = 1; finger <= 4; ++finger) {
      std::vector<std::pair<int, int>> places;  // string and fret, before and after
      for (const Voicing* voicing : {&row[i - 1], &row[i]}) {
        const auto& fingers = voicing->position.fingering;
        const auto found = std::find(fingers.begin(), fingers.end(), finger);
        if (found == fingers.end()) continue;
        const auto string = found - fingers.begin();
        places.emplace_back(string, voicing->position.position[static_cast<std::size_t>(string)]);
      }
      if (places.size() == 1) ++steps;
      if (places.size() == 2) {
        steps += std::abs(places[0].first - places[1].first) +
                 std::abs(places[0].second - places[1].second);
      }
    }
  }
  return steps;
}

TEST(VoicingConnection, MovesLessThanTheFirstShapes) {
  for (const char* names :
       {"C Am F G", "E C#m A B", "C G/B Am F", "Am F C G", "D Bm G A", "A F#m D E", "Dm7 G7 Cmaj7",
        "F Dm Bb C", "Am G F E", "Am7 D7 Gmaj7 Cmaj7 F#m7b5 B7 Em"}) {
    const auto chords = chordsNamed(names);
    std::vector<Voicing> firsts;
    firsts.reserve(chords.size());
    for (const Chord& chord : chords) firsts.push_back(findVoicings(chord, Tuning::standard)[0]);
    const auto connected = connectVoicings(chords, Tuning::standard);
    ASSERT_THAT(connected, ::testing::SizeIs(chords.size())) << names;
    EXPECT_LT(movement(connected), movement(firsts)) << names;
    for (std::size_t i = 0; i < chords.size(); ++i) {
      EXPECT_THAT(findVoicings(chords[i], Tuning::standard), ::testing::Contains(connected[i]))
          << names << " " << i;
    }
  }
}

int totalCost(const std::vector<Voicing>& row) {
  int cost = row.front().cost;
  for (std::size_t i = 1; i < row.size(); ++i) {
    cost += row[i].cost + costOfChange(row[i - 1], row[i]);
  }
  return cost;
}

TEST(VoicingConnection, FindsTheCheapestOfAllRows) {
  for (const char* names : {"C Am F G", "Bb Gm Eb F", "A5 F5 C5 G5"}) {
    std::vector<std::vector<Voicing>> candidates;
    for (const Chord& chord : chordsNamed(names)) {
      candidates.push_back(findVoicings(chord, Tuning::standard, {.limit = 6}));
    }
    int cheapest = 1000000;
    for (const Voicing& first : candidates[0]) {
      for (const Voicing& second : candidates[1]) {
        for (const Voicing& third : candidates[2]) {
          for (const Voicing& fourth : candidates[3]) {
            cheapest = std::min(cheapest, totalCost({first, second, third, fourth}));
          }
        }
      }
    }
    EXPECT_EQ(totalCost(connect(candidates)), cheapest) << names;
  }
}

TEST(VoicingConnection, IsEmptyWithoutChordsOrWithoutAVoicing) {
  EXPECT_THAT(connectVoicings({}, Tuning::standard), IsEmpty());
  EXPECT_THAT(connectVoicings({chordNamed("C"), {Note::C, "majestic", 0}}, Tuning::standard),
              IsEmpty());
  const auto alone = connectVoicings({chordNamed("C")}, Tuning::standard);
  EXPECT_THAT(alone,
              ElementsAreArray(findVoicings(chordNamed("C"), Tuning::standard, {.limit = 1})));
}

TEST(VoicingConnection, FavoursCommonFingersAndShapesThatSlide) {
  const auto first = [](const char* name) {
    return findVoicings(chordNamed(name), Tuning::standard, {.limit = 1}).front();
  };
  // From a shape to an easier and to a harder one.
  const std::array<const char*, 3> rows[] = {
      {"C", "Am", "F"},   // two common fingers against a hand full of new ones
      {"F", "F#", "Bb"},  // the same barre a fret up against another barre on its fret
      {"F#", "F", "Bb"},  // a fret down against the same and fingers that move over
      {"D", "A", "Bm"}};  // hand where it is against one that puts down a barre
  for (const auto& [start, easier, harder] : rows) {
    const Voicing from = first(start);
    EXPECT_LT(costOfChange(from, first(easier)), costOfChange(from, first(harder)))
        << start << " to " << easier << " or " << harder;
    EXPECT_LT(costOfChange(from, from), 0) << start;
  }
}

}  // namespace
}  // namespace tonelake::Voicings
