#include "Tonelake/fingering/chord_engine.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "tests/support/finger_checker.h"
#include "tests/support/many_chords.h"
#include "tests/support/plain_shape_checker.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::vector<ChordPosition> search(const std::string& root, const WholeNumbers& intervals,
                                  WholeNumber limit = -1,
                                  const TuningNames& tuning = Tuning::standard) {
  return ChordEngine::searchChordShapes(root, intervals, limit, tuning);
}

class EveryChord : public ::testing::TestWithParam<TuningNames> {};

// Flat, double and enharmonic names of open strings take part: they change what may ring open.
INSTANTIATE_TEST_SUITE_P(Tunings, EveryChord,
                         ::testing::Values(TuningNames{"E", "A", "D", "G", "B", "E"},
                                           TuningNames{"E♭", "A♭", "D♭", "G♭", "B♭", "E♭"},
                                           TuningNames{"B♯", "F𝄪", "D♭♭", "G", "C♭", "D♯"}));

TEST_P(EveryChord, HasTheShapesOfThePlainChecker) {
  for (const Note root : ChordDataManager::shared().allRootNotes()) {
    for (const std::string& type : chordTypes()) {
      const std::string name(root.rawValue());
      const WholeNumbers& notes = Chords::getChordData(type)->notes;
      const auto shapes = search(name, notes, -1, GetParam());
      ASSERT_EQ(shapes, testing::generatePlainly(name, notes, -1, GetParam())) << name << type;
      EXPECT_TRUE(GetParam() != Tuning::standard || !shapes.empty()) << name << type;
    }
  }
}

TEST(ChordEngine, HasTheShapesOfThePlainCheckerInAnyTuning) {
  for (unsigned seed = 0; seed < 1000; ++seed) {
    std::mt19937 random(seed);
    const TuningNames tuning = testing::randomTuning(random);
    const Chord chord = testing::randomChord(random);
    const WholeNumber limit = random() % 2 == 0 ? -1 : static_cast<WholeNumber>(random() % 12) - 2;
    SCOPED_TRACE(seed);
    const std::string root(chord.rootNote.rawValue());
    const WholeNumbers& notes = Chords::getChordData(chord.chordType)->notes;
    const auto shapes = search(root, notes, limit, tuning);
    ASSERT_EQ(shapes, testing::generatePlainly(root, notes, limit, tuning));
    for (const ChordPosition& shape : shapes) ASSERT_EQ(testing::brokenFingerRule(shape), "");
  }
}

TEST(ChordEngine, ReadsIntervalsLikeThePlainChecker) {
  const std::vector<WholeNumbers> rows{{0},           {12},          {0, 12},         {4, 7, 0},
                                       {0, 4, 7, 12}, {0, 3, 7, 19}, {0, 24, 31, 10}, {0, 0, 0, 7}};
  for (const WholeNumbers& intervals : rows) {
    EXPECT_EQ(search("B", intervals),
              testing::generatePlainly("B", intervals, -1, Tuning::standard))
        << ::testing::PrintToString(intervals);
  }
}

TEST(ChordEngine, GivesNothingForWhatItCannotRead) {
  const WholeNumbers major{0, 4, 7};
  EXPECT_THAT(search("H", major), IsEmpty());
  EXPECT_THAT(search("c", major), IsEmpty());
  EXPECT_THAT(search("C", {}), IsEmpty());
  EXPECT_THAT(search("C", {0, -4, 7}), IsEmpty());
  EXPECT_THAT(search("C", major, -1, {"E", "A", "D", "G", "B"}), IsEmpty());
  EXPECT_THAT(search("C", major, -1, {"E", "A", "D", "G", "B", "Q"}), IsEmpty());
}

TEST(ChordEngine, GivesNoFingersToAShapeThatPressesNothing) {
  const auto shapes = search("E", {0, 5, 10, 3, 7});  // the open strings of standard tuning
  const auto open = std::find_if(shapes.begin(), shapes.end(), [](const ChordPosition& shape) {
    return shape.position.equals(std::vector<int>(6, 0));
  });
  ASSERT_NE(open, shapes.end());
  EXPECT_THAT(open->fingering, IsEmpty());
}

// Remembers everything that was asked of it.
class RecordingStore final : public SettingsStore {
 public:
  std::optional<std::string> text(std::string_view) const override { return std::nullopt; }
  std::optional<bool> boolean(std::string_view) const override { return std::nullopt; }
  std::optional<std::string> data(std::string_view key) const override {
    return key == storedKey ? std::optional(stored) : std::nullopt;
  }
  void setText(std::string_view, std::string_view) override {}
  void setBoolean(std::string_view, bool) override {}
  void setData(std::string_view key, std::string_view value) override {
    storedKey = key;
    stored = value;
    ++writes;
  }
  void remove(std::string_view) override {}

  std::string storedKey;
  std::string stored;
  int writes = 0;
};

class RememberingEngine : public ::testing::Test {
 protected:
  RememberingEngine() {
    platform.standardSettings = store;
    platform.application = {"1.4", "212"};
  }

  std::vector<ChordPosition> generate() {
    return ChordEngine(platform).generateChordShapes("C", major, -1, Tuning::standard);
  }

  const WholeNumbers major{0, 4, 7};
  std::shared_ptr<RecordingStore> store = std::make_shared<RecordingStore>();
  Platform platform;
};

TEST_F(RememberingEngine, StoresItsShapesUnderAVersionedKey) {
  const auto shapes = generate();
  EXPECT_EQ(store->storedKey, "chordPositions-C-0,4,7--1-E,A,D,G,B,E-g2-v1.4-b212");
  EXPECT_THAT(store->stored,
              StartsWith(R"([{"position":[-1,3,2,0,1,0],"fingering":[0,3,2,0,1,0]},)"));
  EXPECT_EQ(generate(), shapes);
  EXPECT_EQ(store->writes, 1);
}

TEST_F(RememberingEngine, ReturnsStoredShapesAsTheyStand) {
  generate();
  store->stored = R"([{"position":[1,1,1,1,1,1],"fingering":[]}])";
  EXPECT_THAT(generate(), ElementsAre(ChordPosition{Frets{1, 1, 1, 1, 1, 1}, {}}));
}

TEST_F(RememberingEngine, ReplacesDamagedShapes) {
  const auto shapes = generate();
  const std::string good = store->stored;
  for (const std::string& damaged : std::initializer_list<std::string>{
           "", "null", good.substr(0, good.size() / 2), good + "]",
           std::string(R"([{"position":[1,1,1,1,1],"fingering":[]}])"),
           std::string(R"([{"position":[1,1,1,1,1,1.0],"fingering":[]}])"),
           std::string(R"([{"position":[1,1,1,1,1,true],"fingering":[]}])"),
           std::string(R"([{"position":[1,1,1,1,1,1000],"fingering":[]}])"),
           std::string(R"([{"position":[1,1,1,1,1,1],"fingering":[1]}])"),
           std::string(R"([{"position":[1,1,1,1,1,1],"fingering":[1,1,1,1,1,5]}])"),
           std::string(R"([{"position":[1,1,1,1,1,1]}])"), std::string("[\"\xFF\"]")}) {
    store->stored = damaged;
    EXPECT_EQ(generate(), shapes) << damaged;
    EXPECT_EQ(store->stored, good) << damaged;
  }
}

TEST_F(RememberingEngine, StoresNothingForWhatItCannotRead) {
  ChordEngine(platform).generateChordShapes("H", major, -1, Tuning::standard);
  EXPECT_EQ(store->writes, 0);
}

}  // namespace
}  // namespace tonelake
