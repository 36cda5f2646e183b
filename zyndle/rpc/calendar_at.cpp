#include "zyndle/rpc/calendar_at.h"

#include <utility>

namespace zyndle {
namespace {

using tonelake::Calendar;
using tonelake::Instant;
using tonelake::LocalTime;
using tonelake::YearMonth;

class StoppedCalendar final : public Calendar {
 public:
  StoppedCalendar(Instant now, std::shared_ptr<const Calendar> calendar)
      : now_(now), calendar_(std::move(calendar)) {}

  Instant now() const override { return now_; }
  std::string timeZone() const override { return calendar_->timeZone(); }
  std::optional<int> ordinalOfDay(Instant instant) const override {
    return calendar_->ordinalOfDay(instant);
  }
  std::optional<YearMonth> month(Instant from, long long months) const override {
    return calendar_->month(from, months);
  }
  std::optional<int> lastDayOfMonth(YearMonth month) const override {
    return calendar_->lastDayOfMonth(month);
  }
  std::optional<Instant> instant(const LocalTime& time) const override {
    return calendar_->instant(time);
  }
  std::optional<Instant> nextMidnight(Instant instant) const override {
    return calendar_->nextMidnight(instant);
  }

 private:
  Instant now_;
  std::shared_ptr<const Calendar> calendar_;
};

}  // namespace

std::shared_ptr<const Calendar> calendarAt(Instant now, std::shared_ptr<const Calendar> calendar) {
  return std::make_shared<const StoppedCalendar>(now, std::move(calendar));
}

}  // namespace zyndle
