#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/calendar.h"

namespace tonelake {

/// One notification, fired once when the wall clock shows `time`.
struct NotificationRequest {
  std::string identifier;  ///< a request with the same identifier replaces the pending one
  std::string title;
  std::string body;
  std::string sound = "default";
  int badge = 1;
  LocalTime time;
};

/// The service that keeps and delivers notifications.
class TONELAKE_API NotificationCenter {
 public:
  /// Called once per request, on a thread of the service's choosing: nothing on success, else
  /// what went wrong.
  using Completion = std::function<void(const std::optional<std::string>& problem)>;

  virtual ~NotificationCenter() = default;
  virtual void add(const NotificationRequest& request, Completion completion) = 0;
};

}  // namespace tonelake
