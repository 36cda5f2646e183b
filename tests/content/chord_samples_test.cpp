#include "Tonelake/content/chord_samples.h"

#include <gtest/gtest.h>

#include "tests/support/printing.h"

namespace tonelake {
namespace {

TEST(ChordSamples, ExistForMajorAndMinorOnly) {
  EXPECT_EQ(Chords::getChordSampleSet(),
            (std::vector<Chord>{{Note::C, "major", 0}, {Note::C, "minor", 0}}));
  const std::pair<const char*, std::size_t> rows[] = {
      {"major", 7}, {"minor", 7}, {"Major", 0}, {"minor 7th", 0}, {"", 0}};
  for (const auto& [type, count] : rows) {
    const auto samples = Chords::getChordSampleSetForChordType(type);
    ASSERT_EQ(samples.size(), count) << type;
    if (count == 0) continue;
    EXPECT_EQ(samples.front(), (Chord{Note::C, type, 0}));
    EXPECT_EQ(samples.back(), (Chord{Note::B, type, 0}));
  }
}

}  // namespace
}  // namespace tonelake
