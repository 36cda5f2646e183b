#include "Tonelake/platform/calendar.h"

namespace tonelake {
namespace {

namespace chrono = std::chrono;

// Years that the standard calendar can name.
constexpr int firstYear = static_cast<int>(chrono::year::min());
constexpr int lastYear = static_cast<int>(chrono::year::max());

chrono::sys_days dayOf(Instant instant) {
  return chrono::floor<chrono::days>(instant);
}

bool isRepresentable(Instant instant) {
  return dayOf(instant) >= chrono::sys_days(chrono::year(firstYear) / 1 / 1) &&
         dayOf(instant) <= chrono::sys_days(chrono::year(lastYear) / 12 / 31);
}

chrono::year_month toChrono(YearMonth month) {
  return chrono::year(month.year) / chrono::month(static_cast<unsigned>(month.month));
}

class UtcCalendar final : public Calendar {
 public:
  Instant now() const override {
    return chrono::floor<chrono::microseconds>(chrono::system_clock::now());
  }

  std::string timeZone() const override { return "UTC"; }

  std::optional<int> ordinalOfDay(Instant instant) const override {
    if (!isRepresentable(instant)) return std::nullopt;
    const chrono::sys_days day = dayOf(instant);
    const chrono::year year = chrono::year_month_day(day).year();
    return static_cast<int>((day - chrono::sys_days(year / 1 / 1)).count()) + 1;
  }

  std::optional<YearMonth> month(Instant from, long long months) const override {
    if (!isRepresentable(from)) return std::nullopt;
    const chrono::year_month_day day(dayOf(from));
    const long long start =
        12LL * static_cast<int>(day.year()) + static_cast<unsigned>(day.month()) - 1;
    // Bounds before adding, so that no offset can overflow.
    if (months < 12LL * firstYear - start || months > 12LL * lastYear + 11 - start) {
      return std::nullopt;
    }
    const long long target = start + months;
    const long long monthInYear = ((target % 12) + 12) % 12;
    return YearMonth{static_cast<int>((target - monthInYear) / 12),
                     static_cast<int>(monthInYear) + 1};
  }

  std::optional<int> lastDayOfMonth(YearMonth month) const override {
    if (!toChrono(month).ok()) return std::nullopt;
    const chrono::year_month_day_last last(toChrono(month) / chrono::last);
    return static_cast<int>(static_cast<unsigned>(last.day()));
  }

  std::optional<Instant> instant(const LocalTime& time) const override {
    const chrono::year_month_day day(toChrono({time.year, time.month}) /
                                     chrono::day(static_cast<unsigned>(time.day)));
    if (!day.ok()) return std::nullopt;
    return Instant(chrono::sys_days(day)) + chrono::hours(time.hour) +
           chrono::minutes(time.minute) + chrono::seconds(time.second);
  }

  std::optional<Instant> nextMidnight(Instant instant) const override {
    if (!isRepresentable(instant)) return std::nullopt;
    return Instant(dayOf(instant) + chrono::days(1));
  }
};

}  // namespace

std::shared_ptr<const Calendar> makeUtcCalendar() {
  return std::make_shared<UtcCalendar>();
}

}  // namespace tonelake
