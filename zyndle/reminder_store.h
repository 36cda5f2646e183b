#pragma once

#include <memory>
#include <string>

#include "Desktop/sqlite_notification_store.h"
#include "Tonelake/platform/notification_center.h"
#include "Tonelake/today/today_chord_library.h"

namespace zyndle {

/// The user's pending reminders. A CommandError when they cannot be opened.
std::unique_ptr<desktop::SqliteNotificationStore> openReminders();

/// Them all, by time. A CommandError when they cannot be read.
std::vector<desktop::StoredNotification> pendingReminders(desktop::SqliteNotificationStore& store);

/// Where a click on a reminder leads: to the chord of its day. "" for any other notification.
std::string reminderLink(const tonelake::NotificationRequest& request,
                         const tonelake::TodayChordLibrary& library);

/// "jazz" for a reminder of that category, "" for any other notification.
std::string reminderCategory(const tonelake::NotificationRequest& request);

}  // namespace zyndle
