#include "Tonelake/fingering/voicings.h"

#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "tests/support/finger_checker.h"
#include "tests/support/many_chords.h"
#include "tests/support/named_chord.h"
#include "tests/support/plain_voicing_checker.h"
#include "tests/support/printing.h"

namespace tonelake::Voicings {
namespace {

using testing::chordNamed;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;

std::vector<std::vector<int>> fretsOf(const std::vector<Voicing>& voicings) {
  std::vector<std::vector<int>> list;
  list.reserve(voicings.size());
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

// Every type with each of its tones in the bass, on one root after another.
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

TEST(Voicings, FollowTheirOptionsLikeThePlainChecker) {
  // Eight frets let the hand rise above the fifth.
  const std::pair<const char*, VoicingOptions> rows[] = {
      {"E7", {-1, 8, 1, false, 0}},       {"A", {-1, 8, 0, true, 0}},
      {"Em7/G", {-1, 7, 3, true, 0}},     {"C9/G", {-1, 8, 2, false, 5}},
      {"G5", {-1, 8, 4, true, 2}},        {"Am", {-1, 0, 1, false, 0}},
      {"Em7add11", {-1, 1, 1, false, 12}}};
  for (const auto& [name, options] : rows) {
    SCOPED_TRACE(name);
    expectPlainVoicings(chordNamed(name), Tuning::standard, options);
  }
}

TEST(Voicings, PutFirstWhatATeacherWouldShow) {
  const std::pair<const char*, std::vector<int>> rows[] = {
      {"C", {-1, 3, 2, 0, 1, 0}},    {"Am", {-1, 0, 2, 2, 1, 0}},  {"G", {3, 2, 0, 0, 0, 3}},
      {"D", {-1, -1, 0, 2, 3, 2}},   {"F", {1, 3, 3, 2, 1, 1}},    {"Bm", {-1, 2, 4, 4, 3, 2}},
      {"D/F#", {2, 0, 0, 2, 3, 2}},  {"C/G", {3, 3, 2, 0, 1, 0}},  {"Am/E", {0, 0, 2, 2, 1, 0}},
      {"E5", {0, 2, 2, -1, -1, -1}}, {"G5", {3, 5, 5, -1, -1, -1}}};
  for (const auto& [name, frets] : rows) {
    EXPECT_EQ(fretsOf(findVoicings(chordNamed(name), Tuning::standard)).front(), frets) << name;
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

}  // namespace
}  // namespace tonelake::Voicings
