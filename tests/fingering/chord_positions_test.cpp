#include "Tonelake/fingering/chord_positions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/fingering/chord_engine.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

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

}  // namespace
}  // namespace tonelake
