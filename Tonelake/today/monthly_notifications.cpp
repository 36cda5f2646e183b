// TodayChordLibrary::scheduleChordNotificationsForMonth: on 10 March 2025 at 09:00, month offset 0
// and category jazz give the requests chordOfTheDay_jazz_2025_3_11 to chordOfTheDay_jazz_2025_3_31.

#include <array>
#include <chrono>
#include <cstdio>
#include <string>

#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/platform/random_choice.h"
#include "Tonelake/today/notification_identifier.h"
#include "Tonelake/today/notification_texts.h"
#include "Tonelake/today/today_chord_library.h"

namespace tonelake {
namespace {

constexpr int notificationHour = 8;
constexpr std::uint32_t minuteCount = 16;
constexpr std::uint32_t secondCount = 60;
constexpr int lastDayOfUnknownMonth = 30;
constexpr WholeNumber longestChordName = 10;  // characters

// Scattered, so that not everybody's reminder comes at the same moment.
LocalTime drawTime(YearMonth month, int day, RandomSource& random) {
  LocalTime time{.year = month.year, .month = month.month, .day = day, .hour = notificationHour};
  time.minute = static_cast<int>(randomBelow(random, minuteCount));
  time.second = static_cast<int>(randomBelow(random, secondCount));
  return time;
}

template <std::size_t count>
std::string_view drawText(const std::array<std::string_view, count>& texts, RandomSource& random) {
  return texts[randomBelow(random, count)];
}

// The title is drawn before the body.
NotificationRequest makeRequest(const Chord& chord, ChordCategory category, const LocalTime& time,
                                const Platform& platform) {
  NotificationRequest request;
  request.identifier = notificationIdentifier({category, time.year, time.month, time.day});
  request.title = platform.strings->localized(drawText(notificationTitles, *platform.random));
  request.body = notificationBody(*platform.strings, drawText(notificationBodies, *platform.random),
                                  Chords::getTitleForChord(chord, longestChordName));
  request.time = time;
  return request;
}

// "2025-03-07 08:05:12 +0000", in UTC.
std::string describe(Instant instant) {
  const auto day = std::chrono::floor<std::chrono::days>(instant);
  const std::chrono::year_month_day date(day);
  const std::chrono::hh_mm_ss time(std::chrono::floor<std::chrono::seconds>(instant - day));
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02u %02d:%02d:%02d +0000",
                static_cast<int>(date.year()), static_cast<unsigned>(date.month()),
                static_cast<unsigned>(date.day()), static_cast<int>(time.hours().count()),
                static_cast<int>(time.minutes().count()), static_cast<int>(time.seconds().count()));
  return text.data();
}

// The answer may come late, so it takes along all that it needs.
NotificationCenter::Completion reportFailure(Instant date,
                                             std::shared_ptr<Diagnostics> diagnostics) {
  return [date, diagnostics = std::move(diagnostics)](const std::optional<std::string>& problem) {
    if (!problem) return;
    diagnostics->write("Notification scheduling failed for " + describe(date) + ": " + *problem);
  };
}

}  // namespace

void TodayChordLibrary::scheduleChordNotificationsForMonth(const TodayChordLibrary& library,
                                                           ChordCategory selectedCategory,
                                                           WholeNumber monthOffset) {
  scheduleChordNotificationsForMonth(library, selectedCategory, monthOffset, processPlatform());
}

void TodayChordLibrary::scheduleChordNotificationsForMonth(const TodayChordLibrary& library,
                                                           ChordCategory selectedCategory,
                                                           WholeNumber monthOffset,
                                                           const Platform& platform) {
  const Calendar& calendar = *platform.calendar;
  const Instant now = calendar.now();
  const std::optional<YearMonth> month = calendar.month(now, monthOffset);
  if (!month) return;
  const int lastDay = calendar.lastDayOfMonth(*month).value_or(lastDayOfUnknownMonth);
  for (int day = 1; day <= lastDay; ++day) {
    const LocalTime time = drawTime(*month, day, *platform.random);
    const std::optional<Instant> date = calendar.instant(time);
    if (!date || *date < now) continue;
    const std::optional<Chord> chord = library.chordOfTheDay(*date, selectedCategory, calendar);
    if (!chord) continue;
    platform.notifications->add(makeRequest(*chord, selectedCategory, time, platform),
                                reportFailure(*date, platform.diagnostics));
  }
}

}  // namespace tonelake
