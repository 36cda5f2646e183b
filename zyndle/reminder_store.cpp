#include "zyndle/reminder_store.h"

#include "Desktop/settings_files.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/notification_identifier.h"
#include "zyndle/command_error.h"

namespace zyndle {

std::unique_ptr<desktop::SqliteNotificationStore> openReminders() {
  auto [store, problem] = desktop::SqliteNotificationStore::open(desktop::settingsFiles().shared);
  if (store == nullptr) fail(problem);
  return std::move(store);
}

std::vector<desktop::StoredNotification> pendingReminders(desktop::SqliteNotificationStore& store) {
  desktop::SqliteNotificationStore::Pending pending = store.pending();
  if (pending.problem) fail(*pending.problem);
  return std::move(pending.notifications);
}

std::string reminderLink(const tonelake::NotificationRequest& request,
                         const tonelake::TodayChordLibrary& library) {
  const auto key = tonelake::parseNotificationIdentifier(request.identifier);
  const auto date = tonelake::processPlatform().calendar->instant(request.time);
  if (!key || !date) return "";
  return todaychord::chordLink(library.chordOfTheDay(*date, key->category));
}

std::string reminderCategory(const tonelake::NotificationRequest& request) {
  const auto key = tonelake::parseNotificationIdentifier(request.identifier);
  return key ? std::string(key->category.rawValue()) : "";
}

}  // namespace zyndle
