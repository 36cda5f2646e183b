// The text is that of the TZ variable, which zone files also carry as their last line:
//
//   CET        -1         CEST                      ,M3.5.0     ,M10.5.0/3
//   its name   west of    summer time's name, and   its start   its end, at three o'clock
//              UTC +      its offset: one hour on
//                         unless it follows

#include "Desktop/zone/yearly_rule.h"

#include <algorithm>
#include <iterator>

namespace desktop {
namespace {

using std::chrono::seconds;

bool isDigit(char character) {
  return character >= '0' && character <= '9';
}

bool isLetter(char character) {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z');
}

// Reads pieces from the front of a text; every function but time() leaves the text as it is on
// failure.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : rest_(text) {}

  bool isAtEnd() const { return rest_.empty(); }
  char next() const { return rest_.empty() ? '\0' : rest_.front(); }

  bool skip(char character) {
    if (next() != character || rest_.empty()) return false;
    rest_.remove_prefix(1);
    return true;
  }

  // At least three letters, or anything between < and >, as in "<+0545>".
  bool skipName() {
    if (next() == '<') {
      const std::size_t close = rest_.find('>');
      if (close == std::string_view::npos) return false;
      rest_.remove_prefix(close + 1);
      return true;
    }
    const auto end = std::ranges::find_if_not(rest_, isLetter);
    const auto length = static_cast<std::size_t>(end - rest_.begin());
    if (length < 3) return false;
    rest_.remove_prefix(length);
    return true;
  }

  // One to three digits.
  std::optional<int> number(int lowest, int highest) {
    int value = 0;
    std::size_t length = 0;
    while (length < rest_.size() && length < 3 && isDigit(rest_[length])) {
      value = 10 * value + (rest_[length++] - '0');
    }
    if (length == 0 || value < lowest || value > highest) return std::nullopt;
    rest_.remove_prefix(length);
    return value;
  }

  // "5", "-1", "5:30" or "0:44:30", in hours first.
  std::optional<seconds> time(int highestHour) {
    const bool isNegative = skip('-');
    if (!isNegative) skip('+');
    const auto hours = number(0, highestHour);
    if (!hours) return std::nullopt;
    seconds total = std::chrono::hours(*hours);
    for (const int unit : {60, 1}) {
      if (!skip(':')) break;
      const auto part = number(0, 59);
      if (!part) return std::nullopt;
      total += seconds(*part * unit);
    }
    return isNegative ? -total : total;
  }

 private:
  std::string_view rest_;
};

constexpr int highestOffsetHour = 24;
constexpr int highestChangeHour = 167;

std::optional<YearlyChange> readWeekdayOfMonth(Scanner& scanner) {
  const auto month = scanner.number(1, 12);
  if (!month || !scanner.skip('.')) return std::nullopt;
  const auto week = scanner.number(1, 5);
  if (!week || !scanner.skip('.')) return std::nullopt;
  const auto weekday = scanner.number(0, 6);
  if (!weekday) return std::nullopt;
  YearlyChange change;
  change.kind = YearlyChange::Kind::weekdayOfMonth;
  change.month = static_cast<unsigned>(*month);
  change.week = static_cast<unsigned>(*week);
  change.weekday = static_cast<unsigned>(*weekday);
  return change;
}

std::optional<YearlyChange> readDayOfYear(Scanner& scanner) {
  YearlyChange change;
  const bool isWithoutLeapDay = scanner.skip('J');
  const auto day = scanner.number(isWithoutLeapDay ? 1 : 0, 365);
  if (!day) return std::nullopt;
  change.kind = isWithoutLeapDay ? YearlyChange::Kind::dayWithoutLeapDay
                                 : YearlyChange::Kind::dayCountedFromZero;
  change.day = *day;
  return change;
}

// ",M3.5.0/3"
std::optional<YearlyChange> readChange(Scanner& scanner) {
  if (!scanner.skip(',')) return std::nullopt;
  auto change = scanner.skip('M') ? readWeekdayOfMonth(scanner) : readDayOfYear(scanner);
  if (!change || !scanner.skip('/')) return change;
  const auto time = scanner.time(highestChangeHour);
  if (!time) return std::nullopt;
  change->timeOfDay = *time;
  return change;
}

date::sys_days dayOf(const YearlyChange& change, date::year year) {
  const date::sys_days newYear(year / 1 / 1);
  switch (change.kind) {
    case YearlyChange::Kind::weekdayOfMonth: {
      const auto month = year / date::month(change.month);
      const date::weekday weekday(change.weekday);
      return change.week == 5 ? date::sys_days(month / weekday[date::last])
                              : date::sys_days(month / weekday[change.week]);
    }
    case YearlyChange::Kind::dayWithoutLeapDay: {
      constexpr int firstOfMarch = 60;
      const bool isBehindLeapDay = year.is_leap() && change.day >= firstOfMarch;
      return newYear + date::days(change.day - 1 + (isBehindLeapDay ? 1 : 0));
    }
    case YearlyChange::Kind::dayCountedFromZero:
      break;
  }
  return newYear + date::days(change.day);
}

}  // namespace

std::optional<YearlyRule> YearlyRule::parse(std::string_view text) {
  Scanner scanner(text);
  YearlyRule rule;
  if (!scanner.skipName()) return std::nullopt;
  // The text counts hours to the west.
  const auto west = scanner.time(highestOffsetHour);
  if (!west) return std::nullopt;
  rule.standardOffset_ = -*west;
  if (scanner.isAtEnd()) return rule;

  if (!scanner.skipName()) return std::nullopt;
  SummerTime summerTime;
  summerTime.offset = rule.standardOffset_ + std::chrono::hours(1);
  if (scanner.next() != ',') {
    const auto summerWest = scanner.time(highestOffsetHour);
    if (!summerWest) return std::nullopt;
    summerTime.offset = -*summerWest;
  }
  const auto start = readChange(scanner);
  const auto end = start ? readChange(scanner) : std::nullopt;
  if (!end || !scanner.isAtEnd()) return std::nullopt;
  summerTime.start = *start;
  summerTime.end = *end;
  rule.summerTime_ = summerTime;
  return rule;
}

std::array<OffsetChange, 2> YearlyRule::changesIn(date::year year) const {
  const auto& [summerOffset, start, end] = *summerTime_;
  // Each time of day is read from the clock before the change.
  return {{{dayOf(start, year) + start.timeOfDay - standardOffset_, summerOffset},
           {dayOf(end, year) + end.timeOfDay - summerOffset, standardOffset_}}};
}

OffsetPeriod YearlyRule::periodAt(date::sys_seconds moment) const {
  if (!summerTime_) return {distantPast, distantFuture, standardOffset_};
  // Offsets and times of day move a change by up to eight days, so that the changes of two years
  // on either side always hold one before and one after the moment.
  const date::year year = date::year_month_day(date::floor<date::days>(moment)).year();
  std::array<OffsetChange, 10> changes;
  auto out = changes.begin();
  for (date::year each = year - date::years(2); each <= year + date::years(2); ++each) {
    out = std::ranges::copy(changesIn(each), out).out;
  }
  // Stable: where summer time lasts all year, its end on 31 December and its next start on
  // 1 January are one moment, and the start has the last word.
  std::ranges::stable_sort(changes, {}, &OffsetChange::moment);
  const auto next = std::ranges::upper_bound(changes, moment, {}, &OffsetChange::moment);
  const auto current = std::prev(next);
  return {current->moment, next->moment, current->offset};
}

}  // namespace desktop
