#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "Desktop/stored_notification.h"
#include "Tonelake/platform/instant.h"

namespace desktop {

/// A reminder as an event of a calendar.
struct CalendarReminder {
  StoredNotification notification;
  std::int64_t sequence = 0;  ///< higher each time the event is written, so that readers update
};

/// An iCalendar text (RFC 5545) with an event for each reminder and an alarm at its start. The
/// events float: they are due by the clock of whoever looks. Importing the same reminders again
/// updates them, since the identifiers make the events' names. `now` is noted as the time of
/// writing. Years 0 to 9999.
std::string writeReminderCalendar(const std::vector<CalendarReminder>& reminders,
                                  tonelake::Instant now);

}  // namespace desktop
