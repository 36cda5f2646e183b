#include "zyndle/reminder_scheduling.h"

#include <fmt/format.h>

#include "Desktop/stored_notification_center.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/today/today_chord_library.h"
#include "zyndle/category_option.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/number_option.h"
#include "zyndle/output.h"
#include "zyndle/reminder_store.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using desktop::StoredNotification;

constexpr tonelake::WholeNumber farthestMonth = 1200;  // a century away

// "2025-03-07 08:05:12  jazz      Warm up with Cmaj7 today!"
std::string describe(const StoredNotification& reminder) {
  const tonelake::LocalTime& time = reminder.request.time;
  return fmt::format("{:04}-{:02}-{:02} {:02}:{:02}:{:02}  {:8}  {}\n", time.year, time.month,
                     time.day, time.hour, time.minute, time.second,
                     reminderCategory(reminder.request), printable(reminder.request.body));
}

// A text about so many reminders; `several` has a place for their number.
struct CountedText {
  const char* none;
  const char* one;
  const char* several;
};

constexpr CountedText scheduledText{message("no reminders scheduled"),
                                    message("1 reminder scheduled"),
                                    message("{} reminders scheduled")};
constexpr CountedText cancelledText{message("no reminders cancelled"),
                                    message("1 reminder cancelled"),
                                    message("{} reminders cancelled")};

void tell(const CountedText& text, std::size_t count) {
  const char* const some = count == 1 ? text.one : text.several;
  writeStandardOutput(translated(count == 0 ? text.none : some, count) + '\n');
}

}  // namespace

void scheduleMonth(const MonthOptions& options,
                   std::shared_ptr<tonelake::NotificationCenter> center) {
  const auto offset =
      readNumber("--month-offset", options.monthOffset, 0, -farthestMonth, farthestMonth);
  const auto category = readCategory(options.category);
  tonelake::Platform platform = tonelake::processPlatform();
  platform.notifications = std::move(center);
  tonelake::TodayChordLibrary::scheduleChordNotificationsForMonth(
      tonelake::TodayChordLibrary(), category ? *category : categoryAsSet(), offset, platform);
}

void scheduleReminders(const MonthOptions& options) {
  installHost(true);
  const auto store = openReminders();
  const tonelake::TodayChordLibrary library;
  const auto center = std::make_shared<desktop::StoredNotificationCenter>(
      *store, [&](const auto& request) { return reminderLink(request, library); });
  scheduleMonth(options, center);
  tell(scheduledText, static_cast<std::size_t>(center->kept()));
  if (center->refused() > 0) {
    fail(translated(center->refused() == 1 ? message("1 reminder could not be kept")
                                           : message("{} reminders could not be kept"),
                    center->refused()));
  }
}

void listReminders() {
  installHost(true);
  std::string text;
  for (const StoredNotification& reminder : pendingReminders(*openReminders())) {
    text += describe(reminder);
  }
  writeStandardOutput(text.empty() ? translated("(none)") + '\n' : text);
}

void cancelReminders(const std::optional<std::string>& category) {
  readCategory(category);
  installHost(true);
  const auto store = openReminders();
  std::size_t count = 0;
  for (const StoredNotification& reminder : pendingReminders(*store)) {
    if (category && reminderCategory(reminder.request) != *category) continue;
    const auto removal = store->remove(reminder);
    if (removal.problem) fail(*removal.problem);
    if (removal.isDone) ++count;
  }
  tell(cancelledText, count);
}

}  // namespace zyndle
