#include "zyndle/rpc/instant_text.h"

#include <fmt/format.h>

namespace zyndle {
namespace {

namespace chrono = std::chrono;
using tonelake::Instant;

constexpr int lastHour = 23;
constexpr int lastMinute = 59;
constexpr int leapSecond = 60;

// Reads a text from its front. Once something is not as it should be, it stays broken: the rest
// may be read in vain and is judged once, at the end.
class TextReader {
 public:
  explicit TextReader(std::string_view text) : rest_(text) {}

  bool isReadWhole() const { return !isBroken_ && rest_.empty(); }

  // Whether the next character is one of `wanted`; takes it if so.
  bool takesOneOf(std::string_view wanted) {
    const bool isThere = !rest_.empty() && wanted.find(rest_.front()) != std::string_view::npos;
    if (isThere) rest_.remove_prefix(1);
    return isThere;
  }

  void expectOneOf(std::string_view wanted) {
    if (!takesOneOf(wanted)) isBroken_ = true;
  }

  // Exactly `digits` digits that make a number of at most `highest`.
  int number(int digits, int highest) {
    int number = 0;
    for (int i = 0; i < digits; ++i) number = number * 10 + digit();
    if (number > highest) isBroken_ = true;
    return number;
  }

  // The digits behind a decimal point, at least one.
  chrono::microseconds fraction() {
    chrono::microseconds sum{0};
    chrono::microseconds worth{100'000};  // 0 from the seventh digit on
    do {
      sum += digit() * worth;
      worth /= 10;
    } while (!rest_.empty() && isDigit(rest_.front()));
    return sum;
  }

 private:
  static bool isDigit(char character) { return character >= '0' && character <= '9'; }

  int digit() {
    if (rest_.empty() || !isDigit(rest_.front())) {
      isBroken_ = true;
      return 0;
    }
    const int value = rest_.front() - '0';
    rest_.remove_prefix(1);
    return value;
  }

  std::string_view rest_;
  bool isBroken_ = false;
};

chrono::year_month_day readDate(TextReader& reader) {
  const chrono::year year(reader.number(4, 9999));
  reader.expectOneOf("-");
  const chrono::month month(static_cast<unsigned>(reader.number(2, 12)));
  reader.expectOneOf("-");
  const chrono::day day(static_cast<unsigned>(reader.number(2, 31)));
  return year / month / day;
}

chrono::minutes readHoursAndMinutes(TextReader& reader) {
  const chrono::hours hours(reader.number(2, lastHour));
  reader.expectOneOf(":");
  return hours + chrono::minutes(reader.number(2, lastMinute));
}

// How far the local clock is ahead of UTC. "-00:00", an unknown offset, is UTC as well.
chrono::minutes readOffset(TextReader& reader) {
  if (reader.takesOneOf("Zz")) return chrono::minutes(0);
  if (reader.takesOneOf("-")) return -readHoursAndMinutes(reader);
  reader.expectOneOf("+");
  return readHoursAndMinutes(reader);
}

// Only such moments can be written again.
bool hasFourDigitYear(Instant instant) {
  const auto year = chrono::year_month_day(chrono::floor<chrono::days>(instant)).year();
  return year >= chrono::year(0) && year <= chrono::year(9999);
}

bool mayEndInLeapSecond(Instant minute) {
  const auto nextDay = minute + chrono::minutes(1);
  const auto day = chrono::floor<chrono::days>(nextDay);
  return day == nextDay && chrono::year_month_day(day).day() == chrono::day(1);
}

}  // namespace

std::optional<Instant> parseInstant(std::string_view text) {
  TextReader reader(text);
  const chrono::year_month_day date = readDate(reader);
  reader.expectOneOf("Tt");
  const chrono::minutes timeOfDay = readHoursAndMinutes(reader);
  reader.expectOneOf(":");
  const int second = reader.number(2, leapSecond);
  const chrono::microseconds fraction =
      reader.takesOneOf(".") ? reader.fraction() : chrono::microseconds(0);
  const chrono::minutes offset = readOffset(reader);
  if (!reader.isReadWhole() || !date.ok()) return std::nullopt;

  const Instant minute = chrono::sys_days(date) + timeOfDay - offset;
  if (!hasFourDigitYear(minute)) return std::nullopt;
  if (second < leapSecond) return minute + chrono::seconds(second) + fraction;
  if (!mayEndInLeapSecond(minute)) return std::nullopt;
  return minute + chrono::minutes(1) - chrono::microseconds(1);
}

std::string formatInstant(Instant instant) {
  const auto day = chrono::floor<chrono::days>(instant);
  const chrono::year_month_day date(day);
  const chrono::hh_mm_ss time(instant - day);
  const auto fraction = time.subseconds().count();
  return fmt::format("{:04}-{:02}-{:02}T{:02}:{:02}:{:02}{}Z", static_cast<int>(date.year()),
                     static_cast<unsigned>(date.month()), static_cast<unsigned>(date.day()),
                     time.hours().count(), time.minutes().count(), time.seconds().count(),
                     fraction == 0 ? "" : fmt::format(".{:06}", fraction));
}

}  // namespace zyndle
