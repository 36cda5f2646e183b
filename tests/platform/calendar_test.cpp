#include "Tonelake/platform/calendar.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

constexpr std::chrono::seconds hour{3600};

TEST(UtcCalendar, AnswersOrSaysNothing) {
  const auto calendar = makeUtcCalendar();
  const Instant instant = *calendar->instant({2024, 12, 31, 23, 59, 59});
  EXPECT_EQ(calendar->ordinalOfDay(instant), 366);
  EXPECT_EQ(calendar->nextMidnight(instant), instant + std::chrono::seconds(1));
  EXPECT_EQ(calendar->nextMidnight(instant + std::chrono::seconds(1)),
            instant + std::chrono::seconds(1) + 24 * hour);
  EXPECT_EQ(calendar->lastDayOfMonth({2024, 2}), 29);
  EXPECT_EQ(calendar->lastDayOfMonth({2024, 13}), std::nullopt);
  EXPECT_EQ(calendar->lastDayOfMonth({67560, 2}), std::nullopt);
  EXPECT_EQ(calendar->instant({2024, 257, 1, 0, 0, 0}), std::nullopt);
  EXPECT_EQ(calendar->instant({2024, 1, 1, 24, 0, 0}), std::nullopt);
  EXPECT_EQ(calendar->instant({1969, 12, 31, 23, 0, 0}), Instant() - hour);
}

TEST(UtcCalendar, AddsMonthsAcrossYears) {
  const auto calendar = makeUtcCalendar();
  const Instant december = *calendar->instant({2025, 12, 31, 0, 0, 0});
  const std::pair<long long, std::optional<YearMonth>> rows[] = {{1, {{2026, 1}}},
                                                                 {-23, {{2024, 1}}},
                                                                 {-2025 * 12, {{0, 12}}},
                                                                 {INT64_MAX, {}},
                                                                 {INT64_MIN, {}}};
  for (const auto& [months, expected] : rows) {
    EXPECT_EQ(calendar->month(december, months), expected) << months;
  }
  EXPECT_EQ(calendar->ordinalOfDay(Instant::max()), std::nullopt);
  EXPECT_EQ(calendar->nextMidnight(Instant::max()), std::nullopt);
}

}  // namespace
}  // namespace tonelake
