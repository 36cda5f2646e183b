#include "Tonelake/fingering/position_resolution.h"

#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/chord_positions.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

const Chord cMajor{Note::C, "major", 0};

class Resolution : public ::testing::TestWithParam<bool> {
 protected:
  std::optional<ChordPosition> choose(WholeNumbers selected, WholeNumbers preset,
                                      const std::stop_token& stop = {}) {
    return choosePosition({cMajor, std::move(selected), std::move(preset), GetParam()}, engine,
                          cache, stop);
  }

  Platform platform;
  ChordEngine engine{platform};
  ChordPositionsCache cache;
};

INSTANTIATE_TEST_SUITE_P(WithAndWithoutCache, Resolution, ::testing::Bool());

TEST_P(Resolution, FindsWhatIsAskedFor) {
  const Frets open{-1, 3, 2, 0, 1, 0};
  const Frets barre{8, 10, 10, 9, 8, 8};
  struct Row {
    const char* what;
    WholeNumbers selected;
    WholeNumbers preset;
    Frets expected;
  };
  const WholeNumbers nothing;
  const Row rows[] = {
      {"neither", nothing, nothing, open},
      {"a selection", {8, 10, 10, 9, 8, 8}, nothing, barre},
      {"a selection before a preset", {9, 9, 9, 9, 9, 9}, {8, 10, 10, 9, 8, 8}, open},
      {"a preset", nothing, {8, 10, 10, 9, 8, 8}, barre},
      {"a preset of muted strings", nothing, {-1, -1, -1, -1, -1, -1}, open},
      {"a preset that is near", nothing, {8, 10, 10, 9, 8, 9}, barre},
      {"a short preset", nothing, {8, 10}, barre},
  };
  for (const Row& row : rows) {
    const auto found = choose(row.selected, row.preset);
    ASSERT_TRUE(found.has_value()) << row.what;
    EXPECT_EQ(found->position.numbers(), row.expected) << row.what;
  }
  EXPECT_TRUE(choose({}, {INT64_MAX, -1, -1, -1, -1, INT64_MIN}).has_value());
}

TEST_P(Resolution, PrefersShapesThatSoundThePresetsStrings) {
  // Few shapes sound all six strings; a shape that mutes one of them is never nearer.
  const auto found = choose({}, {0, 3, 2, 0, 1, 1});
  ASSERT_TRUE(found.has_value());
  EXPECT_THAT(found->position, ::testing::Each(::testing::Ge(0)));
}

TEST_P(Resolution, GivesNothingWhenCancelledOrWithoutPositions) {
  std::stop_source source;
  source.request_stop();
  EXPECT_EQ(choose({}, {}, source.get_token()), std::nullopt);
  EXPECT_EQ(choosePosition({{Note::C, "?", 0}, {}, {}, GetParam()}, engine, cache), std::nullopt);
}

TEST(PositionResolution, RunsInTheBackground) {
  EXPECT_EQ(Chords::resolveChordPosition({cMajor}).get(),
            Chords::getChordPositions(cMajor, 1, Tuning::standard).front());
}

TEST(PositionResolution, CachesTheFullListUnderItsKey) {
  const Platform platform;
  const ChordEngine engine(platform);
  ChordPositionsCache cache;
  const PositionRequest withoutTuning{cMajor, {}, {}, true, {"EADGBE"}};
  EXPECT_EQ(choosePosition(withoutTuning, engine, cache), std::nullopt);
  choosePosition({cMajor, {}, {}, true}, engine, cache);
  EXPECT_EQ(choosePosition(withoutTuning, engine, cache), std::nullopt);
  EXPECT_EQ(chordPositionsCacheKey(cMajor, Tuning::standard), "C-major-0-EADGBE");
  EXPECT_EQ(cache.get("C-major-0-EADGBE"), Chords::getChordPositions(cMajor, -1, Tuning::standard));
  cache.set({}, "C-major-0-EADGBE");
  EXPECT_EQ(choosePosition({cMajor, {}, {}, true}, engine, cache), std::nullopt);
}

// Eight threads ask for 200 chords at once, in different orders: misses, stores and reads meet.
TEST(PositionResolution, AnswersManyThreadsLikeOne) {
  std::vector<Chord> chords;
  for (const Note root : ChordDataManager::shared().allRootNotes()) {
    for (std::size_t i = 0; i < 12 && chords.size() < 200; ++i) {
      chords.push_back({root, chordTypes()[i], 0});
    }
  }
  ASSERT_EQ(chords.size(), 200U);
  const Platform platform;
  const ChordEngine engine(platform);
  std::vector<std::optional<ChordPosition>> alone;
  for (const Chord& chord : chords) {
    ChordPositionsCache fresh;
    alone.push_back(choosePosition({chord, {}, {}, true}, ChordEngine(Platform()), fresh));
  }
  ChordPositionsCache cache;
  std::array<std::size_t, 8> differences{};
  {
    std::vector<std::jthread> threads;
    for (std::size_t thread = 0; thread < differences.size(); ++thread) {
      threads.emplace_back([&, thread] {
        for (std::size_t i = 0; i < chords.size(); ++i) {
          const std::size_t at = (i * (2 * thread + 1) + 7 * thread) % chords.size();
          const auto found = choosePosition({chords[at], {}, {}, true}, engine, cache);
          if (found != alone[at]) ++differences[thread];
        }
      });
    }
  }
  EXPECT_THAT(differences, ::testing::Each(0U));
}

}  // namespace
}  // namespace tonelake
