#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "Desktop/zone/offset_period.h"

namespace desktop {

/// The day and time of day, by the wall clock before the change, at which clocks change every
/// year.
struct YearlyChange {
  enum class Kind {
    weekdayOfMonth,      ///< "M3.5.0": the fifth (5: the last) Sunday of March
    dayWithoutLeapDay,   ///< "J60": 1 March in every year
    dayCountedFromZero,  ///< "59": 29 February or 1 March
  };

  Kind kind = Kind::dayCountedFromZero;
  unsigned month = 1;    ///< 1 to 12
  unsigned week = 1;     ///< 1 to 5
  unsigned weekday = 0;  ///< 0 (Sunday) to 6
  int day = 0;           ///< 1 to 365 without, 0 to 365 with the leap day
  std::chrono::seconds timeOfDay = std::chrono::hours(2);  ///< -167 to 167 hours
};

/// What a zone does year after year: "CET-1CEST,M3.5.0,M10.5.0/3" is one hour ahead of UTC, and
/// two between the last Sundays of March and October.
class YearlyRule {
 public:
  /// Nothing when `text` is no such rule, or when it names summer time without saying when.
  static std::optional<YearlyRule> parse(std::string_view text);

  /// The stretch that holds `moment`, which lies in a year that date::year can name, five years
  /// from its limits at least.
  OffsetPeriod periodAt(date::sys_seconds moment) const;

 private:
  struct SummerTime {
    std::chrono::seconds offset{0};
    YearlyChange start;
    YearlyChange end;
  };

  std::array<OffsetChange, 2> changesIn(date::year year) const;

  std::chrono::seconds standardOffset_{0};
  std::optional<SummerTime> summerTime_;
};

}  // namespace desktop
