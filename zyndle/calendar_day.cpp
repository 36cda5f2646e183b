#include "zyndle/calendar_day.h"

#include <algorithm>
#include <chrono>

#include <fmt/format.h>

namespace zyndle {
namespace {

constexpr std::string_view form = "dddd-dd-dd";  // d for a digit
constexpr int noon = 12;

// The number that digits of a text in the right form make.
int number(std::string_view digits) {
  int value = 0;
  for (const char digit : digits) value = 10 * value + (digit - '0');
  return value;
}

}  // namespace

bool hasDayForm(std::string_view text) {
  return std::equal(text.begin(), text.end(), form.begin(), form.end(), [](char c, char wanted) {
    return wanted == 'd' ? c >= '0' && c <= '9' : c == wanted;
  });
}

std::optional<CalendarDay> parseDay(std::string_view text) {
  if (!hasDayForm(text)) return std::nullopt;
  const CalendarDay day{number(text.substr(0, 4)), number(text.substr(5, 2)),
                        number(text.substr(8, 2))};
  const std::chrono::year_month_day date(std::chrono::year(day.year),
                                         std::chrono::month(static_cast<unsigned>(day.month)),
                                         std::chrono::day(static_cast<unsigned>(day.day)));
  return date.ok() && day.year > 0 ? std::optional(day) : std::nullopt;
}

std::string writeDay(const CalendarDay& day) {
  return fmt::format("{:04}-{:02}-{:02}", day.year, day.month, day.day);
}

std::optional<CalendarDay> dayOf(const tonelake::Calendar& calendar, tonelake::Instant instant) {
  const std::optional<tonelake::YearMonth> month = calendar.month(instant, 0);
  std::optional<int> day = calendar.ordinalOfDay(instant);
  if (!month || !day) return std::nullopt;
  // The day of the year, less the days of the months before: 7 March is day 66, 66 - 31 - 28.
  for (int earlier = 1; earlier < month->month; ++earlier) {
    const std::optional<int> last = calendar.lastDayOfMonth({month->year, earlier});
    if (!last) return std::nullopt;
    *day -= *last;
  }
  return CalendarDay{month->year, month->month, *day};
}

std::optional<tonelake::Instant> momentOf(const tonelake::Calendar& calendar,
                                          const CalendarDay& day) {
  return calendar.instant({.year = day.year, .month = day.month, .day = day.day, .hour = noon});
}

}  // namespace zyndle
