#include "zyndle/reminder_posting.h"

#include <algorithm>
#include <chrono>

#include "Desktop/dbus_notification_poster.h"
#include "Desktop/reminder_delivery.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/child_process.h"
#include "zyndle/command_error.h"
#include "zyndle/host.h"
#include "zyndle/output.h"
#include "zyndle/reminder_store.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using desktop::Delivery;
using std::chrono::milliseconds;

// Meanwhile others may schedule, the clock may be set and the machine may sleep.
constexpr milliseconds longestSleep = std::chrono::seconds(30);

Delivery deliverDue(desktop::SqliteNotificationStore& store, desktop::NotificationPoster& poster) {
  const tonelake::Platform& platform = tonelake::processPlatform();
  return desktop::deliverDueReminders(store, poster, *platform.calendar, *platform.diagnostics);
}

std::string describeProblem(const Delivery& delivery) {
  if (delivery.waiting == 0) return *delivery.problem;
  return *delivery.problem + "; " +
         translated(delivery.waiting == 1 ? message("1 reminder kept for the next delivery")
                                          : message("{} reminders kept for the next delivery"),
                    delivery.waiting);
}

// What is due already was tried just now and has to wait its turn.
milliseconds timeToSleep(desktop::SqliteNotificationStore& store) {
  const tonelake::Calendar& calendar = *tonelake::processPlatform().calendar;
  const auto next = desktop::nextReminder(store, calendar);
  const auto now = calendar.now();
  if (!next || *next <= now) return longestSleep;
  return std::min(longestSleep, std::chrono::ceil<milliseconds>(*next - now));
}

void openLink(const std::string& link) {
  if (startQuietly({"xdg-open", link})) return;
  reportProblem(translated("{0} is missing, which opens {1}", "xdg-open", link));
}

[[noreturn]] void deliverForGood(desktop::SqliteNotificationStore& store) {
  desktop::DbusNotificationPoster poster(openLink);
  std::string told;  // each problem is told once, not at every attempt
  for (;;) {
    const Delivery delivery = deliverDue(store, poster);
    const std::string problem = delivery.problem ? describeProblem(delivery) : "";
    if (problem != told) reportProblem(problem);
    told = problem;
    poster.wait(timeToSleep(store));
  }
}

}  // namespace

void deliverReminders(bool wait) {
  installHost(true);
  const auto store = openReminders();
  if (wait) deliverForGood(*store);
  desktop::DbusNotificationPoster poster;
  const Delivery delivery = deliverDue(*store, poster);
  if (delivery.posted > 0) {
    writeStandardOutput(translated(delivery.posted == 1 ? message("1 reminder delivered")
                                                        : message("{} reminders delivered"),
                                   delivery.posted) +
                        '\n');
  }
  if (delivery.problem) fail(describeProblem(delivery));
}

}  // namespace zyndle
