#pragma once

#include <string>

#include "zyndle/reminder_scheduling.h"

namespace zyndle {

/// `zyndle reminders export`: writes the reminders of a month to a file for calendars, "-" for
/// standard output. Those that are scheduled keep their times and texts, the others are made up
/// and not scheduled.
void exportReminders(const MonthOptions& options, const std::string& file);

}  // namespace zyndle
