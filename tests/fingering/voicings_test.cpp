#include "Tonelake/fingering/voicings.h"

#include <algorithm>
#include <cstdlib>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/fingering/voicing_connection.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/finger_checker.h"
#include "tests/support/plain_voicing_checker.h"
#include "tests/support/printing.h"
#include "tests/support/random_chords.h"

namespace tonelake::Voicings {
namespace {

using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using ::testing::UnorderedElementsAreArray;

Chord chordNamed(std::string_view name) {
  return Chords::lookUpChord(name).value();
}

std::vector<Chord> chordsNamed(std::string_view names) {
  std::vector<Chord> chords;
  for (const std::string_view name : split(names, ' ')) chords.push_back(chordNamed(name));
  return chords;
}

std::vector<std::vector<int>> fretsOf(const std::vector<Voicing>& voicings) {
  std::vector<std::vector<int>> list;
  for (const Voicing& voicing : voicings) {
    list.emplace_back(voicing.position.position.begin(), voicing.position.position.end());
  }
  return list;
}

void expectPlainVoicings(const Chord& chord, const TuningNames& tuning,
                         const VoicingOptions& options) {
  const auto voicings = findVoicings(chord, tuning, options);
  EXPECT_THAT(fretsOf(voicings),
              UnorderedElementsAreArray(testing::listVoicingsPlainly(chord, tuning, options)));
  for (const Voicing& voicing : voicings) {
    EXPECT_EQ(testing::wrongFact(voicing), "") << ::testing::PrintToString(voicing.position);
    EXPECT_EQ(testing::brokenFingerRule(voicing.position, {.barreMayCoverMuted = true}), "")
        << ::testing::PrintToString(voicing.position);
    EXPECT_EQ(voicing.bassTone, chord.variant);
  }
}

class EveryTypeAndBass : public ::testing::TestWithParam<TuningNames> {};

INSTANTIATE_TEST_SUITE_P(Tunings, EveryTypeAndBass,
                         ::testing::Values(Tuning::standard,
                                           TuningNames{"D", "A", "D", "G", "A", "D"},
                                           TuningNames{"E♭", "B♭", "D♭", "G♭", "B♭", "F♭"}));

// All 49 types with each of their tones in the bass, on one root after another.
TEST_P(EveryTypeAndBass, HasTheVoicingsOfThePlainChecker) {
  const auto roots = ChordDataManager::shared().allRootNotes();
  std::size_t root = 0;
  VoicingOptions options;
  options.highestFret = 4;
  for (const std::string& type : chordTypes()) {
    const auto tones = static_cast<WholeNumber>(Chords::getChordData(type)->notes.size());
    for (WholeNumber variant = 0; variant < tones; ++variant) {
      const Chord chord{roots[root++ % roots.size()], type, variant};
      SCOPED_TRACE(::testing::PrintToString(chord));
      expectPlainVoicings(chord, GetParam(), options);
    }
  }
}

TEST(Voicings, AreThoseOfThePlainCheckerInAnyTuning) {
  for (unsigned seed = 0; seed < 400; ++seed) {
    std::mt19937 random(seed);
    const TuningNames tuning = testing::randomTuning(random);
    const Chord chord = testing::randomChord(random);
    const auto upTo = [&](unsigned highest) { return static_cast<int>(random() % (highest + 1)); };
    SCOPED_TRACE(seed);
    expectPlainVoicings(chord, tuning, {-1, upTo(6), upTo(4), upTo(1) == 0, upTo(12)});
  }
}

struct OptionsRow {
  const char* chord;
  int highestFret;
  int innerMutes;
  bool openStringsAboveFifthFret;
  int capo;
};

TEST(Voicings, FollowTheirOptionsLikeThePlainChecker) {
  // Eight frets let the hand rise above the fifth.
  for (const OptionsRow& row : std::initializer_list<OptionsRow>{{"E7", 8, 1, false, 0},
                                                                 {"A", 8, 0, true, 0},
                                                                 {"Em7/G", 7, 3, true, 0},
                                                                 {"C9/G", 8, 2, false, 5},
                                                                 {"G5", 8, 4, true, 2},
                                                                 {"Am", 0, 1, false, 0},
                                                                 {"Em7add11", 1, 1, false, 12}}) {
    SCOPED_TRACE(row.chord);
    expectPlainVoicings(
        chordNamed(row.chord), Tuning::standard,
        {-1, row.highestFret, row.innerMutes, row.openStringsAboveFifthFret, row.capo});
  }
}

struct FirstRow {
  const char* chord;
  std::vector<int> frets;
};

TEST(Voicings, PutFirstWhatATeacherWouldShow) {
  for (const FirstRow& row : std::initializer_list<FirstRow>{{"C", {-1, 3, 2, 0, 1, 0}},
                                                             {"Am", {-1, 0, 2, 2, 1, 0}},
                                                             {"G", {3, 2, 0, 0, 0, 3}},
                                                             {"D", {-1, -1, 0, 2, 3, 2}},
                                                             {"F", {1, 3, 3, 2, 1, 1}},
                                                             {"Bm", {-1, 2, 4, 4, 3, 2}},
                                                             {"D/F#", {2, 0, 0, 2, 3, 2}},
                                                             {"C/G", {3, 3, 2, 0, 1, 0}},
                                                             {"Am/E", {0, 0, 2, 2, 1, 0}},
                                                             {"E5", {0, 2, 2, -1, -1, -1}},
                                                             {"G5", {3, 5, 5, -1, -1, -1}}}) {
    EXPECT_EQ(fretsOf(findVoicings(chordNamed(row.chord), Tuning::standard)).front(), row.frets)
        << row.chord;
  }
}

TEST(Voicings, ComeInTheOrderOfTheirCost) {
  for (const char* name : {"E", "Bb", "F#m7b5", "C/E", "A5"}) {
    const auto voicings = findVoicings(chordNamed(name), Tuning::standard);
    for (std::size_t i = 1; i < voicings.size(); ++i) {
      const auto rank = [](const Voicing& v) { return std::pair(v.cost, v.lowestFret); };
      EXPECT_LE(rank(voicings[i - 1]), rank(voicings[i])) << name << " " << i;
    }
    for (const WholeNumber limit : {0, 1, 7, 100000}) {
      VoicingOptions options;
      options.limit = limit;
      const auto best = findVoicings(chordNamed(name), Tuning::standard, options);
      const auto count = std::min(voicings.size(), static_cast<std::size_t>(limit));
      EXPECT_THAT(best, ElementsAreArray(voicings.data(), count)) << name << " " << limit;
    }
  }
}

TEST(Voicings, CountFromTheCapoAndSoundAtPitch) {
  VoicingOptions third;
  third.capo = 3;
  EXPECT_EQ(findVoicings(chordNamed("C"), Tuning::standard, third),
            findVoicings(chordNamed("A"), Tuning::standard));
  VoicingOptions twelfth;
  twelfth.capo = 12;
  EXPECT_EQ(findVoicings(chordNamed("D/F#"), Tuning::standard, twelfth),
            findVoicings(chordNamed("D/F#"), Tuning::standard));
}

TEST(Voicings, StopAtTheLastFretOfTheNeck) {
  int highest = 0;
  for (const auto& frets :
       fretsOf(findVoicings(chordNamed("Em"), Tuning::standard, {.highestFret = 1000000}))) {
    highest = std::max(highest, *std::max_element(frets.begin(), frets.end()));
  }
  EXPECT_EQ(highest, 24);
}

TEST(Voicings, AreNoneForWhatCannotBe) {
  const Chord major{Note::C, "major", 0};
  const TuningNames& standard = Tuning::standard;
  EXPECT_THAT(findVoicings({Note::C, "majestic", 0}, standard), IsEmpty());
  EXPECT_THAT(findVoicings({Note::C, "major", 3}, standard), IsEmpty());
  EXPECT_THAT(findVoicings({Note::C, "major", -1}, standard), IsEmpty());
  EXPECT_THAT(findVoicings(major, {"E", "A", "D", "G", "B"}), IsEmpty());
  EXPECT_THAT(findVoicings(major, {"E", "A", "D", "G", "B", "E", "A"}), IsEmpty());
  EXPECT_THAT(findVoicings(major, {"E", "A", "D", "G", "B", "H"}), IsEmpty());
  EXPECT_THAT(findVoicings(major, standard, {.capo = -1}), IsEmpty());
  EXPECT_THAT(findVoicings(major, standard, {.capo = 13}), IsEmpty());
  EXPECT_THAT(findVoicings(major, standard, {.highestFret = -1}), IsEmpty());
  EXPECT_THAT(findVoicings(major, standard, {.innerMutes = -1}), IsEmpty());
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

TEST(ConnectVoicings, MovesLessThanTheFirstShapes) {
  for (const char* names :
       {"C Am F G", "E C#m A B", "C G/B Am F", "Am F C G", "D Bm G A", "A F#m D E", "Dm7 G7 Cmaj7",
        "F Dm Bb C", "Am G F E", "Am7 D7 Gmaj7 Cmaj7 F#m7b5 B7 Em"}) {
    const auto chords = chordsNamed(names);
    std::vector<Voicing> firsts;
    for (const Chord& chord : chords) firsts.push_back(findVoicings(chord, Tuning::standard)[0]);
    const auto connected = connectVoicings(chords, Tuning::standard);
    ASSERT_THAT(connected, SizeIs(chords.size())) << names;
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

TEST(ConnectVoicings, FindsTheCheapestOfAllRows) {
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

TEST(ConnectVoicings, IsEmptyWithoutChordsOrWithoutAVoicing) {
  EXPECT_THAT(connectVoicings({}, Tuning::standard), IsEmpty());
  EXPECT_THAT(connectVoicings({chordNamed("C"), {Note::C, "majestic", 0}}, Tuning::standard),
              IsEmpty());
  const auto alone = connectVoicings({chordNamed("C")}, Tuning::standard);
  EXPECT_THAT(alone,
              ElementsAreArray(findVoicings(chordNamed("C"), Tuning::standard, {.limit = 1})));
}

struct ChangeRow {
  const char* from;
  const char* easier;
  const char* harder;
};

// First shapes each.
TEST(CostOfChange, FavoursCommonFingersAndShapesThatSlide) {
  const auto first = [](const char* name) {
    return findVoicings(chordNamed(name), Tuning::standard, {.limit = 1}).front();
  };
  for (const ChangeRow& row : std::initializer_list<ChangeRow>{
           {"C", "Am", "F"},     // two common fingers against a hand full of new ones
           {"F", "F#", "Bb"},    // the same barre a fret up against another barre on its fret
           {"F#", "F", "Bb"},    // a fret down against the same and fingers that move over
           {"D", "A", "Bm"}}) {  // hand where it is against one that puts down a barre
    const Voicing from = first(row.from);
    EXPECT_LT(costOfChange(from, first(row.easier)), costOfChange(from, first(row.harder)))
        << row.from << " to " << row.easier << " or " << row.harder;
    EXPECT_LT(costOfChange(from, from), 0) << row.from;
  }
}

}  // namespace
}  // namespace tonelake::Voicings
