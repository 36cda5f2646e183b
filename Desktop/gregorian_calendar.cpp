#include "Desktop/gregorian_calendar.h"

#include <mutex>
#include <optional>
#include <utility>

#include <date/date.h>

namespace desktop {
namespace {

using std::chrono::seconds;
using tonelake::Instant;
using tonelake::LocalTime;
using tonelake::YearMonth;

// Well inside what date::year can name, so that neither an offset nor the years that a zone's
// rule looks at can leave its range.
constexpr int firstYear = -32000;
constexpr int lastYear = 32000;
constexpr int monthsInYear = 12;

bool isInRange(int year) {
  return year >= firstYear && year <= lastYear;
}

bool isInRange(Instant instant) {
  return instant >= date::sys_days(date::year(firstYear) / 1 / 1) &&
         instant < date::sys_days(date::year(lastYear + 1) / 1 / 1);
}

bool isMonth(int month) {
  return month >= 1 && month <= monthsInYear;
}

// What the clock on the wall shows, as if it were a count of seconds.
date::local_seconds shown(date::sys_seconds moment, const OffsetPeriod& period) {
  return date::local_seconds((moment + period.offset).time_since_epoch());
}

// The moment at which a clock with the offset of `period` shows `local`.
date::sys_seconds moment(date::local_seconds local, const OffsetPeriod& period) {
  return date::sys_seconds(local.time_since_epoch()) - period.offset;
}

// Whether the clocks go from before a day's midnight to behind it, so that the day begins at the
// change: in São Paulo, 2018-11-03 24:00 was already 2018-11-04 01:00.
bool skipsMidnight(const OffsetPeriod& period, const OffsetPeriod& next) {
  const date::local_seconds before = shown(next.begin, period);
  const date::local_seconds after = shown(next.begin, next);
  return date::floor<date::days>(after) >= before;
}

std::optional<date::local_seconds> toLocalSeconds(const LocalTime& time) {
  const bool isTimeOfDay = time.hour >= 0 && time.hour < 24 && time.minute >= 0 &&
                           time.minute < 60 && time.second >= 0 && time.second < 60;
  if (!isTimeOfDay || !isInRange(time.year) || !isMonth(time.month) || time.day < 1 ||
      time.day > 31) {
    return std::nullopt;
  }
  const date::year_month_day day = date::year(time.year) / time.month / time.day;
  if (!day.ok()) return std::nullopt;
  return date::local_days(day) + std::chrono::hours(time.hour) + std::chrono::minutes(time.minute) +
         seconds(time.second);
}

class GregorianCalendar final : public tonelake::Calendar {
 public:
  // `findZone` is called once, when the zone is first needed.
  GregorianCalendar(std::function<NamedZone()> findZone, Clock clock)
      : findZone_(std::move(findZone)), clock_(std::move(clock)) {}

  Instant now() const override { return clock_(); }
  std::string timeZone() const override { return zone().name; }

  std::optional<int> ordinalOfDay(Instant instant) const override {
    if (!isInRange(instant)) return std::nullopt;
    const date::local_days day = localDay(instant);
    const date::year year = date::year_month_day(day).year();
    return static_cast<int>((day - date::local_days(year / 1 / 1)).count()) + 1;
  }

  std::optional<YearMonth> month(Instant from, long long months) const override {
    if (!isInRange(from)) return std::nullopt;
    const date::year_month_day day(localDay(from));
    // Counted from January of the first year; bounds before adding, so that nothing overflows.
    const long long start = monthsInYear * (static_cast<int>(day.year()) - firstYear) +
                            static_cast<long long>(static_cast<unsigned>(day.month())) - 1;
    const long long end = monthsInYear * (lastYear + 1 - firstYear);
    if (months < -start || months >= end - start) return std::nullopt;
    const auto target = static_cast<int>(start + months);
    return YearMonth{firstYear + target / monthsInYear, target % monthsInYear + 1};
  }

  std::optional<int> lastDayOfMonth(YearMonth month) const override {
    if (!isInRange(month.year) || !isMonth(month.month)) return std::nullopt;
    const date::year_month_day_last last = date::year(month.year) / month.month / date::last;
    return static_cast<int>(static_cast<unsigned>(last.day()));
  }

  std::optional<Instant> instant(const LocalTime& time) const override;
  std::optional<Instant> nextMidnight(Instant instant) const override;

 private:
  const NamedZone& zone() const {
    std::call_once(zoneFound_, [this] { zone_ = findZone_(); });
    return *zone_;
  }

  OffsetPeriod periodAt(date::sys_seconds moment) const { return zone().zone.periodAt(moment); }

  date::local_days localDay(Instant instant) const {
    const auto second = date::floor<seconds>(instant);
    return date::floor<date::days>(shown(second, periodAt(second)));
  }

  const std::function<NamedZone()> findZone_;
  const Clock clock_;
  mutable std::once_flag zoneFound_;
  mutable std::optional<NamedZone> zone_;
};

std::optional<Instant> GregorianCalendar::instant(const LocalTime& time) const {
  const auto local = toLocalSeconds(time);
  if (!local) return std::nullopt;
  // Two days before, every clock of the world shows an earlier time.
  OffsetPeriod period = periodAt(date::sys_seconds(local->time_since_epoch()) - date::days(2));
  // The first period that reaches the time either shows it or begins behind it.
  while (moment(*local, period) >= period.end) {
    const OffsetPeriod next = periodAt(period.end);
    if (shown(next.begin, next) > *local) {
      const date::local_days day = date::floor<date::days>(*local);
      const bool isWholeDaySkipped =
          shown(next.begin, period) <= day && shown(next.begin, next) >= day + date::days(1);
      return isWholeDaySkipped ? std::nullopt : std::optional<Instant>(next.begin);
    }
    period = next;
  }
  return moment(*local, period);
}

std::optional<Instant> GregorianCalendar::nextMidnight(Instant instant) const {
  if (!isInRange(instant)) return std::nullopt;
  const auto second = date::floor<seconds>(instant);
  OffsetPeriod period = periodAt(second);
  date::sys_seconds from = second + seconds(1);
  for (;;) {
    const auto midnight = moment(date::ceil<date::days>(shown(from, period)), period);
    if (midnight < period.end) return midnight;
    const OffsetPeriod next = periodAt(period.end);
    if (skipsMidnight(period, next)) return next.begin;
    period = next;
    from = next.begin;
  }
}

}  // namespace

Instant systemClock() {
  return date::floor<std::chrono::microseconds>(std::chrono::system_clock::now());
}

std::shared_ptr<const tonelake::Calendar> makeGregorianCalendar(const std::string& zoneName,
                                                                Clock clock) {
  auto zone = findZone(zoneSourcesOfThisMachine().zoneFolder, zoneName);
  if (!zone) return nullptr;
  return std::make_shared<GregorianCalendar>([zone = std::move(*zone)] { return zone; },
                                             std::move(clock));
}

std::shared_ptr<const tonelake::Calendar> makeMachineCalendar(
    std::shared_ptr<tonelake::Diagnostics> diagnostics, Clock clock, ZoneSources sources) {
  return std::make_shared<GregorianCalendar>(
      [diagnostics = std::move(diagnostics), sources = std::move(sources)] {
        MachineZone machine = findMachineZone(sources);
        if (!machine.warning.empty()) diagnostics->write(machine.warning);
        return std::move(machine.zone);
      },
      std::move(clock));
}

}  // namespace desktop
