#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/instant.h"

namespace tonelake {

/// A moment as a clock on the wall shows it: month 1 to 12, day 1 to 31, hour 0 to 23, minute and
/// second 0 to 59.
struct LocalTime {
  int year = 0;    ///< as the Gregorian calendar counts
  int month = 1;   ///< 1 to 12
  int day = 1;     ///< 1 to 31
  int hour = 0;    ///< 0 to 23
  int minute = 0;  ///< 0 to 59
  int second = 0;  ///< 0 to 59

  friend bool operator==(const LocalTime&, const LocalTime&) = default;
};

/// A month of a year.
struct YearMonth {
  int year = 0;   ///< as the Gregorian calendar counts
  int month = 1;  ///< 1 to 12

  friend bool operator==(const YearMonth&, const YearMonth&) = default;
};

/// The user's calendar in the user's time zone. Every answer but `now` and `timeZone` may be
/// missing, and the library has a fall-back for each. Implementations are safe to call from any
/// thread.
class TONELAKE_API Calendar {
 public:
  virtual ~Calendar() = default;

  /// The moment of the call, by the machine's clock.
  virtual Instant now() const = 0;

  /// IANA name, for example "Europe/Berlin".
  virtual std::string timeZone() const = 0;

  /// The place of the day that holds `instant` within its year, 1 to 366.
  virtual std::optional<int> ordinalOfDay(Instant instant) const = 0;

  /// The month that holds the moment `months` calendar months after `from`; negative goes back.
  virtual std::optional<YearMonth> month(Instant from, long long months) const = 0;

  /// The number of the last day of a month, 28 to 31.
  virtual std::optional<int> lastDayOfMonth(YearMonth month) const = 0;

  /// The moment at which the wall clock shows `time`. A time that the zone skips gives the first
  /// moment after the gap, a repeated one the first of the two; nothing for an impossible date
  /// and for a day that the zone skipped whole.
  virtual std::optional<Instant> instant(const LocalTime& time) const = 0;

  /// The earliest moment strictly after `instant` whose wall clock reads 00:00:00, or, on a day
  /// that has none, the first moment of that day.
  virtual std::optional<Instant> nextMidnight(Instant instant) const = 0;
};

/// The calendar without any set-up: UTC and the system's clock, by the standard library alone.
TONELAKE_API std::shared_ptr<const Calendar> makeUtcCalendar();

}  // namespace tonelake
