#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <string>

#include "Desktop/notification_poster.h"

namespace desktop {

/// Posts by org.freedesktop.Notifications on the user's D-Bus. It connects when it first posts, and
/// anew when the bus has gone. For one thread.
class DbusNotificationPoster final : public NotificationPoster {
 public:
  using OpenLink = std::function<void(const std::string& link)>;

  /// `openLink` is called within wait() when a notification with a link was clicked. Without it,
  /// and where the service knows no clicks, the notification's text carries its link.
  explicit DbusNotificationPoster(OpenLink openLink = {});
  ~DbusNotificationPoster() override;

  /// Takes two seconds at most to connect, and for each of its two calls.
  std::optional<std::string> post(const StoredNotification& notification) override;

  /// Waits this long, and deals with the clicks that come meanwhile.
  void wait(std::chrono::milliseconds time);

 private:
  class Session;

  const OpenLink openLink_;
  std::unique_ptr<Session> session_;  // nullptr while there is no connection
};

}  // namespace desktop
