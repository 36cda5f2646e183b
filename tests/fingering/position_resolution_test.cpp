#include "Tonelake/fingering/position_resolution.h"

#include <thread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/chord_filters.h"
#include "Tonelake/fingering/chord_positions.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const Chord cMajor{Note::C, "major", 0};

std::vector<ChordPosition> positions(const Chord& chord, WholeNumber limit = -1) {
  return Chords::getChordPositions(chord, limit, Tuning::standard);
}

TEST(ChordPositions, PutPreferredShapesFirst) {
  const auto all = positions(cMajor);
  std::vector<Frets> first;
  for (std::size_t i = 0; i < 4; ++i) first.push_back(all[i].position.numbers());
  EXPECT_THAT(first, ElementsAre(Frets{-1, 3, 2, 0, 1, 0}, Frets{-1, 3, 2, 0, 1, 3},
                                 Frets{-1, 3, 5, 5, 5, 3}, Frets{8, 10, 10, 9, 8, 8}));
  // The rest keeps the order of discovery.
  auto found = ChordEngine::searchChordShapes("C", WholeNumbers{0, 4, 7}, -1, Tuning::standard);
  std::erase_if(found, [&](const ChordPosition& shape) {
    return std::find(first.begin(), first.end(), shape.position.numbers()) != first.end();
  });
  EXPECT_EQ(std::vector(all.begin() + 4, all.end()), found);
  // C♯ 5 prefers a shape that the search never finds: that changes nothing.
  EXPECT_EQ(positions({Note::Cs, "5", 0}), positions({Note::Df, "5", 0}));
}

TEST(ChordPositions, AreCutAfterTheyAreSorted) {
  const auto all = positions(cMajor);
  EXPECT_THAT(positions(cMajor, 1), ElementsAre(all.front()));
  EXPECT_THAT(positions(cMajor, 0), IsEmpty());
  EXPECT_EQ(positions(cMajor, 100000), all);
  EXPECT_THAT(positions({Note::C, "Major", 0}), IsEmpty());
  EXPECT_DEATH(positions(cMajor, -2), "limit");
}

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

TEST(ResolveChordPosition, RunsInTheBackground) {
  EXPECT_EQ(Chords::resolveChordPosition({cMajor}).get(), positions(cMajor).front());
}

TEST(ChordPositionsCache, KeepsTheFullListUnderItsKey) {
  const Platform platform;
  const ChordEngine engine(platform);
  ChordPositionsCache cache;
  choosePosition({cMajor, {}, {}, true, {"EADGBE"}}, engine, cache);
  choosePosition({cMajor, {}, {}, true}, engine, cache);
  EXPECT_EQ(chordPositionsCacheKey(cMajor, Tuning::standard), "C-major-0-EADGBE");
  EXPECT_EQ(cache.get("C-major-0-EADGBE"), positions(cMajor));
  cache.set({}, "C-major-0-EADGBE");
  EXPECT_EQ(choosePosition({cMajor, {}, {}, true}, engine, cache), std::nullopt);
}

// Eight threads ask for 200 chords at once, in different orders: misses, stores and reads meet.
TEST(ChordPositionsCache, AnswersManyThreadsLikeOne) {
  std::vector<Chord> chords;
  for (const Note root : ChordDataManager::shared().allRootNotes()) {
    for (std::size_t i = 0; i < 12 && chords.size() < 200; ++i) {
      chords.push_back({root, chordTypes()[i], 0});
    }
  }
  ASSERT_THAT(chords, SizeIs(200));
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

TEST(ChordFilters, NameChordTypesOfTheDictionary) {
  const ChordFilters& filters = ChordFilters::shared();
  EXPECT_THAT(filters.allFilters(), SizeIs(11));
  EXPECT_THAT(*filters.filters("9"), ElementsAre("9", "minor add 9", "minor 6 add 9"));
  EXPECT_EQ(filters.filters("Maj"), std::nullopt);
  for (const auto& [label, types] : filters.allFilters()) {
    for (const std::string& type : types) {
      EXPECT_NE(Chords::getChordData(type), nullptr) << label << ": " << type;
    }
  }
}

}  // namespace
}  // namespace tonelake
