#include "Tonelake/today/today_chord_library.h"

#include <map>
#include <set>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/fingering/chord_positions.h"
#include "tests/support/fixed_calendar.h"
#include "tests/support/printing.h"

namespace tonelake {
namespace {

using ::testing::Ge;
using ::testing::SizeIs;

class MapBundle final : public ResourceBundle {
 public:
  std::map<std::string, std::string> files;

  std::optional<std::string> load(std::string_view name,
                                  std::string_view extension) const override {
    const auto found = files.find(std::string(name) + "." + std::string(extension));
    return found == files.end() ? std::nullopt : std::optional(found->second);
  }
};

// A bundle whose beginner list holds `count` different chords (told apart by their variant).
MapBundle bundleOf(int count) {
  std::string list;
  for (int i = 0; i < count; ++i) {
    list += (i > 0 ? "," : "") + std::string(R"({"rootNote":"C","chordType":"major","variant":)") +
            std::to_string(i) + "}";
  }
  MapBundle bundle;
  for (const char* category : {"beginner", "advanced", "jazz"}) {
    bundle.files[std::string(category) + "_chords.json"] = "[" + list + "]";
  }
  return bundle;
}

Instant day(int year, int month, int dayOfMonth) {
  return testing::utc({year, month, dayOfMonth, 12, 0, 0});
}

TEST(TodayChordLibrary, FillsAYearFromAnyList) {
  for (const int count : {1, 100, 365, 366, 400}) {
    const TodayChordLibrary library(bundleOf(count), makeUtcCalendar());
    ASSERT_THAT(library.jazzChords, SizeIs(366)) << count;
    for (int i = 0; i < 366; ++i) {
      ASSERT_EQ(library.jazzChords[static_cast<std::size_t>(i)].variant, i % count) << count;
    }
  }
}

TEST(TodayChordLibrary, ChoosesByTheDayOfTheYear) {
  const TodayChordLibrary library(bundleOf(366), makeUtcCalendar());
  const std::pair<Instant, WholeNumber> rows[] = {
      {day(2025, 1, 1), 0},     {day(2024, 1, 1), 0},     {day(2025, 12, 31), 364},
      {day(2024, 12, 31), 365}, {day(2024, 2, 29), 59},   {day(2025, 3, 1), 59},
      {day(2024, 3, 1), 60},    {day(1900, 12, 31), 364}, {day(2000, 12, 31), 365}};
  for (const auto& [date, index] : rows) {
    EXPECT_EQ(library.chordOfTheDay(date, ChordCategory::advanced)->variant, index)
        << date.time_since_epoch().count();
  }
}

TEST(TodayChordLibrary, HasNoChordWithoutAnOrdinal) {
  const auto calendar = std::make_shared<testing::FixedCalendar>(day(2025, 1, 1));
  calendar->knowsDays = false;
  const TodayChordLibrary library(bundleOf(366), calendar);
  EXPECT_EQ(library.chordOfTheDay(calendar->now(), ChordCategory::jazz), std::nullopt);
}

TEST(TodayChordLibraryDeathTest, StopsWithoutAWordOnABrokenPackage) {
  MapBundle missing = bundleOf(366);
  missing.files.erase("jazz_chords.json");
  MapBundle damaged = bundleOf(366);
  damaged.files["advanced_chords.json"] = R"([{"rootNote":"H","chordType":"major","variant":0}])";
  EXPECT_DEATH(TodayChordLibrary(missing, makeUtcCalendar()), "^$");
  EXPECT_DEATH(TodayChordLibrary(damaged, makeUtcCalendar()), "^$");
  const TodayChordLibrary empty(bundleOf(0), makeUtcCalendar());
  EXPECT_DEATH(empty.chordOfTheDay(day(2025, 1, 1), ChordCategory::jazz), "empty");
}

TEST(TodayChordLibrary, HasCategoriesOfExactNames) {
  for (const ChordCategory category : ChordCategory::allCases()) {
    EXPECT_EQ(ChordCategory::fromRawValue(category.id()), category);
  }
  EXPECT_EQ(ChordCategory::fromRawValue("Jazz"), std::nullopt);
  EXPECT_EQ(ChordCategory(ChordCategory::jazz).localizedTitle(), "Jazz");
}

// What the shipped lists promise.
class ShippedList : public ::testing::TestWithParam<ChordCategory> {
 protected:
  const std::vector<Chord>& list() const {
    switch (GetParam()) {
      case ChordCategory::beginner:
        return library.beginnerChords;
      case ChordCategory::advanced:
        return library.advancedChords;
      default:
        return library.jazzChords;
    }
  }

  TodayChordLibrary library;
};

INSTANTIATE_TEST_SUITE_P(Lists, ShippedList,
                         ::testing::ValuesIn(ChordCategory::allCases().begin(),
                                             ChordCategory::allCases().end()),
                         [](const auto& list) { return std::string(list.param.rawValue()); });

TEST_P(ShippedList, OffersPlayableChordsInRootPosition) {
  const auto roots = ChordDataManager::shared().allRootNotes();
  for (const Chord& chord : list()) {
    EXPECT_EQ(chord.variant, 0);
    EXPECT_NE(std::find(roots.begin(), roots.end(), chord.rootNote), roots.end());
    EXPECT_FALSE(Chords::getChordPositions(chord, 1, Tuning::standard).empty())
        << ::testing::PrintToString(chord);
  }
}

TEST_P(ShippedList, RepeatsNoChordWithinFiveDays) {
  for (const std::size_t yearLength : {365U, 366U}) {
    for (std::size_t i = 0; i < yearLength; ++i) {
      for (std::size_t distance = 1; distance <= 5; ++distance) {
        const Chord& later = list()[(i + distance) % yearLength];
        EXPECT_NE(list()[i], later) << "day " << i + 1 << ": " << ::testing::PrintToString(later);
      }
    }
  }
}

TEST_P(ShippedList, IsVaried) {
  std::set<std::string> types;
  std::set<std::pair<int, std::string>> chords;
  for (const Chord& chord : list()) {
    types.insert(chord.chordType);
    chords.emplace(chord.rootNote, chord.chordType);
  }
  const bool isBeginner = GetParam() == ChordCategory::beginner;
  EXPECT_THAT(chords.size(), Ge(isBeginner ? 30U : 150U));
  EXPECT_THAT(types.size(), Ge(isBeginner ? 2U : 25U));
}

TEST(ShippedLists, SpareBeginnersTheBarre) {
  const TodayChordLibrary library;
  int barres = 0;
  for (const Chord& chord : library.beginnerChords) {
    const auto shape = Chords::getChordPositions(chord, 1, Tuning::standard).front();
    const auto index = std::count(shape.fingering.begin(), shape.fingering.end(), 1);
    barres += index > 1 ? 1 : 0;
  }
  EXPECT_LE(barres, 183);
}

TEST(ShippedLists, AreGivenTogetherInOrder) {
  const TodayChordLibrary library;
  const auto all = library.getAllChords();
  ASSERT_THAT(all, SizeIs(1098));
  EXPECT_EQ(all[365], library.beginnerChords.back());
  EXPECT_EQ(all[366], library.advancedChords.front());
  EXPECT_EQ(all[732], library.getJazzChords().front());
}

}  // namespace
}  // namespace tonelake
