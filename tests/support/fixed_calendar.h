#pragma once

#include <memory>
#include <optional>
#include <string>

#include "Tonelake/platform/calendar.h"

namespace tonelake::testing {

/// A calendar whose clock stands still, ahead of UTC by a whole number of hours, which knows no
/// month's end and can be made to know neither days nor midnights.
class FixedCalendar : public Calendar {
 public:
  explicit FixedCalendar(Instant time, int hoursAhead = 0) : time_(time), ahead_(hoursAhead) {}

  bool knowsDays = true;
  bool knowsMidnights = true;

  Instant now() const override { return time_; }
  std::string timeZone() const override { return "Test/Ahead"; }
  std::optional<int> ordinalOfDay(Instant instant) const override {
    return knowsDays ? utc_->ordinalOfDay(instant + ahead_) : std::nullopt;
  }
  std::optional<Instant> nextMidnight(Instant instant) const override {
    if (!knowsMidnights) return std::nullopt;
    return *utc_->nextMidnight(instant + ahead_) - ahead_;
  }
  std::optional<YearMonth> month(Instant from, long long months) const override {
    return utc_->month(from + ahead_, months);
  }
  std::optional<int> lastDayOfMonth(YearMonth) const override { return std::nullopt; }
  std::optional<Instant> instant(const LocalTime& time) const override {
    const auto moment = utc_->instant(time);
    return moment ? std::optional(*moment - ahead_) : std::nullopt;
  }

 private:
  Instant time_;
  std::chrono::hours ahead_;
  std::shared_ptr<const Calendar> utc_ = makeUtcCalendar();
};

/// The moment at which a clock in UTC shows `time`.
inline Instant utc(const LocalTime& time) {
  return *makeUtcCalendar()->instant(time);
}

}  // namespace tonelake::testing
