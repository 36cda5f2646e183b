#pragma once

#include <optional>
#include <string>

#include "Desktop/stored_notification.h"

namespace desktop {

/// Puts notifications before the user's eyes.
class NotificationPoster {
 public:
  virtual ~NotificationPoster() = default;

  /// Nothing once the notification is on show, else what went wrong.
  virtual std::optional<std::string> post(const StoredNotification& notification) = 0;
};

}  // namespace desktop
