#include "Desktop/reminder_delivery.h"

#include <chrono>

#include "Desktop/translation.h"

namespace desktop {
namespace {

using tonelake::Instant;

constexpr std::chrono::hours longestDelay{24};

class DeliveryRun {
 public:
  DeliveryRun(SqliteNotificationStore& store, NotificationPoster& poster,
              tonelake::Diagnostics& diagnostics, Instant now)
      : store_(store), poster_(poster), diagnostics_(diagnostics), now_(now) {}

  void deliver(StoredNotification notification);
  void drop(const StoredNotification& notification, const std::string& line);
  void note(const std::optional<std::string>& problem) {
    if (!delivery_.problem) delivery_.problem = problem;
  }
  const Delivery& delivery() const { return delivery_; }

 private:
  SqliteNotificationStore& store_;
  NotificationPoster& poster_;
  tonelake::Diagnostics& diagnostics_;
  const Instant now_;
  Delivery delivery_;
};

// Claimed, posted, marked, in this order: between two steps the process may be killed.
void DeliveryRun::deliver(StoredNotification notification) {
  const SqliteNotificationStore::Change claim = store_.claim(notification, now_);
  note(claim.problem);
  if (claim.problem) ++delivery_.waiting;
  if (!claim.isDone) return;  // somebody else delivers it
  if (const auto problem = poster_.post(notification)) {
    ++delivery_.waiting;
    note(problem);
    note(store_.release(notification).problem);
    return;
  }
  ++delivery_.posted;
  note(store_.markDelivered(notification).problem);
}

void DeliveryRun::drop(const StoredNotification& notification, const std::string& line) {
  const SqliteNotificationStore::Change removal = store_.remove(notification);
  note(removal.problem);
  if (!removal.isDone) return;  // somebody else has dropped it, or it was scheduled again
  diagnostics_.write(line);
}

}  // namespace

Delivery deliverDueReminders(SqliteNotificationStore& store, NotificationPoster& poster,
                             const tonelake::Calendar& calendar,
                             tonelake::Diagnostics& diagnostics) {
  const Instant now = calendar.now();
  DeliveryRun run(store, poster, diagnostics, now);
  const SqliteNotificationStore::Pending pending = store.pending();
  run.note(pending.problem);
  for (const StoredNotification& notification : pending.notifications) {
    const std::string& name = notification.request.identifier;
    const std::optional<Instant> due = calendar.instant(notification.request.time);
    if (!due) {
      run.drop(notification,
               translated("Reminder {0} dropped: its day does not exist in the time zone {1}", name,
                          calendar.timeZone()));
    } else if (now - *due > longestDelay) {
      run.drop(notification,
               translated("Reminder {} dropped: it was missed by more than a day", name));
    } else if (*due <= now) {
      run.deliver(notification);
    }
  }
  return run.delivery();
}

std::optional<Instant> nextReminder(SqliteNotificationStore& store,
                                    const tonelake::Calendar& calendar) {
  std::optional<Instant> next;
  for (const StoredNotification& notification : store.pending().notifications) {
    const auto due = calendar.instant(notification.request.time);
    if (due && (!next || *due < *next)) next = due;
  }
  return next;
}

}  // namespace desktop
