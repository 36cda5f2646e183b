#include "zyndle/reminder_export.h"

#include <map>
#include <vector>

#include "Desktop/reminder_calendar_file.h"
#include "Tonelake/platform/notification_request_list.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/today_chord_library.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/reminder_store.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using desktop::CalendarReminder;
using desktop::StoredNotification;
using tonelake::NotificationRequest;

std::vector<CalendarReminder> remindersOfMonth(const MonthOptions& options,
                                               desktop::SqliteNotificationStore& store) {
  const auto month = std::make_shared<tonelake::NotificationRequestList>();
  scheduleMonth(options, month);
  std::map<std::string, StoredNotification> scheduled;
  for (StoredNotification& reminder : pendingReminders(store)) {
    scheduled.emplace(reminder.request.identifier, std::move(reminder));
  }
  const tonelake::TodayChordLibrary library;
  std::vector<CalendarReminder> reminders;
  for (const NotificationRequest& request : month->requests) {
    const auto found = scheduled.find(request.identifier);
    reminders.push_back({found == scheduled.end()
                             ? StoredNotification{request, reminderLink(request, library)}
                             : found->second});
  }
  return reminders;
}

// Before the file is written: a number that no file carries does no harm, one that two different
// files carry keeps a calendar from updating.
void numberReminders(std::vector<CalendarReminder>& reminders,
                     desktop::SqliteNotificationStore& store) {
  std::vector<std::string> identifiers;
  identifiers.reserve(reminders.size());
  for (const CalendarReminder& reminder : reminders) {
    identifiers.push_back(reminder.notification.request.identifier);
  }
  desktop::SqliteNotificationStore::Sequences next = store.nextSequences(identifiers);
  if (next.problem) fail(*next.problem);
  for (CalendarReminder& reminder : reminders) {
    reminder.sequence = next.sequences[reminder.notification.request.identifier];
  }
}

}  // namespace

void exportReminders(const MonthOptions& options, const std::string& file) {
  if (file.empty())
    refuse(translated("{} needs the name of a file, or - for standard output", "-o"));
  installHost(true);
  const auto store = openReminders();
  std::vector<CalendarReminder> reminders = remindersOfMonth(options, *store);
  // A calendar without any event is not a valid one.
  if (reminders.empty()) fail(translated("there is no day left in that month to export"));
  numberReminders(reminders, *store);
  writeFile(file,
            desktop::writeReminderCalendar(reminders, tonelake::processPlatform().calendar->now()));
}

}  // namespace zyndle
