#pragma once

#include <optional>
#include <string>

#include "Desktop/notification_poster.h"
#include "Desktop/sqlite_notification_store.h"
#include "Tonelake/platform/calendar.h"
#include "Tonelake/platform/diagnostics.h"

namespace desktop {

/// What a delivery did.
struct Delivery {
  int posted = 0;
  int waiting = 0;                     ///< due, but not taken; the next delivery tries again
  std::optional<std::string> problem;  ///< the first one
};

/// Posts what is due by the calendar's clock and zone and marks it delivered. What was missed by
/// more than a day is dropped with one diagnostic line. To be called whenever something may be due,
/// by several processes at once if need be: each reminder is posted by one of them. A process
/// killed on the way loses none, though the one that was just being posted may come again.
Delivery deliverDueReminders(SqliteNotificationStore& store, NotificationPoster& poster,
                             const tonelake::Calendar& calendar,
                             tonelake::Diagnostics& diagnostics);

/// When there is next something to deliver, the moment being over where it is due already; nothing
/// when nothing is pending or the store cannot be read. Another process may schedule an earlier one
/// meanwhile, and the clock and the zone may change: whoever sleeps until then looks again every
/// now and then.
std::optional<tonelake::Instant> nextReminder(SqliteNotificationStore& store,
                                              const tonelake::Calendar& calendar);

}  // namespace desktop
