#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/platform/calendar.h"

namespace zyndle {

/// A day as people write it, in no time zone: year 1 to 9999, month 1 to 12, day 1 to 31.
struct CalendarDay {
  int year = 1;
  int month = 1;
  int day = 1;

  friend bool operator==(const CalendarDay&, const CalendarDay&) = default;
};

/// Whether `text` looks like a day, for example "2024-02-29" or "2024-99-99".
bool hasDayForm(std::string_view text);

/// Reads "2024-02-29", in exactly that form. Nothing for other texts and for days that no year
/// has, such as 2026-02-30.
std::optional<CalendarDay> parseDay(std::string_view text);

/// "2024-02-29".
std::string writeDay(const CalendarDay& day);

/// The user's day that holds `instant`; nothing when the calendar cannot tell.
std::optional<CalendarDay> dayOf(const tonelake::Calendar& calendar, tonelake::Instant instant);

/// A moment that lies in the user's day: its noon. Nothing when the user's zone skipped that day.
std::optional<tonelake::Instant> momentOf(const tonelake::Calendar& calendar,
                                          const CalendarDay& day);

}  // namespace zyndle
