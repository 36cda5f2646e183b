#include "Tonelake/fingering/chord_filters.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"

namespace tonelake {
namespace {

TEST(ChordFilters, NameChordTypesOfTheDictionary) {
  const ChordFilters& filters = ChordFilters::shared();
  EXPECT_THAT(filters.allFilters(), ::testing::SizeIs(11));
  EXPECT_THAT(*filters.filters("9"), ::testing::ElementsAre("9", "minor add 9", "minor 6 add 9"));
  EXPECT_EQ(filters.filters("Maj"), std::nullopt);
  for (const auto& [label, types] : filters.allFilters()) {
    for (const std::string& type : types) {
      EXPECT_NE(Chords::getChordData(type), nullptr) << label << ": " << type;
    }
  }
}

}  // namespace
}  // namespace tonelake
