#include "Desktop/dbus_notification_poster.h"

#include <algorithm>
#include <cstdint>
#include <future>
#include <map>
#include <thread>
#include <utility>
#include <vector>

#include <poll.h>
#include <sdbus-c++/sdbus-c++.h>

#include "Desktop/translation.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

using Clock = std::chrono::steady_clock;
using Connection = std::unique_ptr<sdbus::IConnection>;
using Hints = std::map<std::string, sdbus::Variant>;

constexpr const char* service = "org.freedesktop.Notifications";
constexpr const char* object = "/org/freedesktop/Notifications";
constexpr const char* interface = "org.freedesktop.Notifications";
constexpr const char* defaultAction = "default";  // a click on the notification itself
constexpr std::chrono::seconds timeOut{2};
constexpr std::uint32_t replacesNothing = 0;
constexpr std::int32_t expiresAsUsual = -1;

std::string escapeMarkup(const std::string& text) {
  std::string escaped = tonelake::replaceAll(text, "&", "&amp;");
  escaped = tonelake::replaceAll(escaped, "<", "&lt;");
  return tonelake::replaceAll(escaped, ">", "&gt;");
}

// By the names that themes of sounds share. The service has none for its usual sound, which is that
// of a message.
std::string soundNamed(const std::string& sound) {
  return sound == "default" ? "message-new-instant" : sound;
}

// On a thread of its own, since a bus that is there but does not answer would hold the caller up
// for a minute and a half. The thread outlives a call that gave up, and needs nothing of it.
Connection connect() {
  std::packaged_task<Connection()> task([] { return sdbus::createSessionBusConnection(); });
  std::future<Connection> connection = task.get_future();
  std::thread(std::move(task)).detach();
  if (connection.wait_for(timeOut) != std::future_status::ready) {
    throw sdbus::Error("org.freedesktop.DBus.Error.Timeout", translated("the bus does not answer"));
  }
  return connection.get();
}

std::string describe(const sdbus::Error& error) {
  return translated("no notification service takes the reminder: {}",
                    error.getMessage().empty() ? error.getName() : error.getMessage());
}

}  // namespace

// One connection to the bus, and the notifications posted over it that can be clicked.
class DbusNotificationPoster::Session {
 public:
  explicit Session(const OpenLink& openLink)
      : openLink_(openLink),
        connection_(connect()),
        proxy_(sdbus::createProxy(*connection_, service, object)) {
    if (!openLink_) return;
    // Before anything is posted, so that no click comes too early.
    proxy_->uponSignal("ActionInvoked")
        .onInterface(interface)
        .call([this](std::uint32_t id, const std::string& action) { click(id, action); });
    proxy_->uponSignal("NotificationClosed")
        .onInterface(interface)
        .call([this](std::uint32_t id, std::uint32_t /*reason*/) { links_.erase(id); });
    proxy_->finishRegistration();
  }

  void post(const StoredNotification& notification);
  void wait(Clock::time_point end);

 private:
  bool serverCan(const char* capability) const {
    return std::find(capabilities_.begin(), capabilities_.end(), capability) != capabilities_.end();
  }

  std::string bodyOf(const StoredNotification& notification, bool isClickable) const {
    std::string body = notification.request.body;
    if (!notification.link.empty() && !isClickable) body += '\n' + notification.link;
    return serverCan("body-markup") ? escapeMarkup(body) : body;
  }

  void click(std::uint32_t id, const std::string& action) {
    const auto link = links_.find(id);
    if (link != links_.end() && action == defaultAction) openLink_(link->second);
  }

  const OpenLink& openLink_;
  const Connection connection_;
  const std::unique_ptr<sdbus::IProxy> proxy_;
  std::vector<std::string> capabilities_;
  std::map<std::uint32_t, std::string> links_;  // by the service's number for the notification
};

void DbusNotificationPoster::Session::post(const StoredNotification& notification) {
  // Asked each time: the service may have been replaced by another one.
  proxy_->callMethod("GetCapabilities")
      .onInterface(interface)
      .withTimeout(timeOut)
      .storeResultsTo(capabilities_);
  const bool isClickable = openLink_ && !notification.link.empty() && serverCan("actions");
  std::vector<std::string> actions;
  if (isClickable) actions = {defaultAction, translated("Show chord")};
  Hints hints;
  if (serverCan("sound")) {
    hints["sound-name"] = sdbus::Variant(soundNamed(notification.request.sound));
  }
  std::uint32_t id = 0;
  proxy_->callMethod("Notify")
      .onInterface(interface)
      .withTimeout(timeOut)
      .withArguments(std::string("Zyndle"), replacesNothing, std::string(),
                     notification.request.title, bodyOf(notification, isClickable), actions, hints,
                     expiresAsUsual)
      .storeResultsTo(id);
  if (isClickable) links_[id] = notification.link;
}

void DbusNotificationPoster::Session::wait(Clock::time_point end) {
  for (;;) {
    while (connection_->processPendingRequest()) {
    }
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
    if (left.count() <= 0) return;
    const auto data = connection_->getEventLoopPollData();
    pollfd descriptor{data.fd, data.events, 0};
    const int busTimeOut = data.getPollTimeout();
    const int ownTimeOut = static_cast<int>(left.count());
    ::poll(&descriptor, 1, busTimeOut < 0 ? ownTimeOut : std::min(busTimeOut, ownTimeOut));
  }
}

DbusNotificationPoster::DbusNotificationPoster(OpenLink openLink)
    : openLink_(std::move(openLink)) {}

DbusNotificationPoster::~DbusNotificationPoster() = default;

std::optional<std::string> DbusNotificationPoster::post(const StoredNotification& notification) {
  try {
    if (session_ == nullptr) session_ = std::make_unique<Session>(openLink_);
    session_->post(notification);
    return std::nullopt;
  } catch (const sdbus::Error& error) {
    return describe(error);
  }
}

void DbusNotificationPoster::wait(std::chrono::milliseconds time) {
  const auto end = Clock::now() + time;
  try {
    if (session_ != nullptr) return session_->wait(end);
  } catch (const sdbus::Error&) {
    session_ = nullptr;  // the bus has gone; the next post looks for a new one
  }
  const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now());
  if (left.count() > 0) ::poll(nullptr, 0, static_cast<int>(left.count()));
}

}  // namespace desktop
