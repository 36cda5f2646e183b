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

bool isBetween(int number, int lowest, int highest) {
  return number >= lowest && number <= highest;
}

// Nothing for what is no month: the standard's own types would take year 67560 for 2024.
std::optional<chrono::year_month> toChrono(YearMonth month) {
  if (!isBetween(month.year, firstYear, lastYear) || !isBetween(month.month, 1, 12)) {
    return std::nullopt;
  }
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
    const auto standard = toChrono(month);
    if (!standard) return std::nullopt;
    const chrono::year_month_day_last last(*standard / chrono::last);
    return static_cast<int>(static_cast<unsigned>(last.day()));
  }

  std::optional<Instant> instant(const LocalTime& time) const override {
    const auto lastDay = lastDayOfMonth({time.year, time.month});
    if (!lastDay || !isBetween(time.day, 1, *lastDay) || !isBetween(time.hour, 0, 23) ||
        !isBetween(time.minute, 0, 59) || !isBetween(time.second, 0, 59)) {
      return std::nullopt;
    }
    const chrono::sys_days firstDay(*toChrono({time.year, time.month}) / 1);
    return Instant(firstDay + chrono::days(time.day - 1)) + chrono::hours(time.hour) +
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
