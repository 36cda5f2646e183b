#pragma once

#include <functional>
#include <string>

#include "Desktop/sqlite_notification_store.h"
#include "Tonelake/platform/notification_center.h"

namespace desktop {

/// Keeps the requests in a store until somebody delivers them. Answers at once, on the caller's
/// thread.
class StoredNotificationCenter final : public tonelake::NotificationCenter {
 public:
  /// Tells where a click on a notification leads; "" for nowhere.
  using LinkOf = std::function<std::string(const tonelake::NotificationRequest& request)>;

  /// The store outlives the center.
  StoredNotificationCenter(SqliteNotificationStore& store, LinkOf linkOf)
      : store_(store), linkOf_(std::move(linkOf)) {}

  void add(const tonelake::NotificationRequest& request, Completion completion) override {
    const SqliteNotificationStore::Problem problem = store_.add({request, linkOf_(request)});
    ++(problem ? refused_ : kept_);
    completion(problem);
  }

  /// How many requests were kept and how many were not.
  int kept() const { return kept_; }
  int refused() const { return refused_; }

 private:
  SqliteNotificationStore& store_;
  const LinkOf linkOf_;
  int kept_ = 0;
  int refused_ = 0;
};

}  // namespace desktop
