#pragma once

#include <functional>
#include <optional>
#include <string>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/calendar.h"

namespace tonelake {

/// One notification, fired once when the wall clock shows `time`.
struct NotificationRequest {
  std::string identifier;         ///< a request with the same identifier replaces the pending one
  std::string title;              ///< one line, in the user's language
  std::string body;               ///< a sentence or two, in the user's language
  std::string sound = "default";  ///< the service's name of a sound; "default" is its usual one
  int badge = 1;                  ///< the number on the app's icon
  LocalTime time;                 ///< in the zone that the clock then has
};

/// The service that keeps and delivers notifications.
class TONELAKE_API NotificationCenter {
 public:
  /// Called once per request, on a thread of the service's choosing: nothing on success, else
  /// what went wrong.
  using Completion = std::function<void(const std::optional<std::string>& problem)>;

  virtual ~NotificationCenter() = default;
  /// Takes over a request. What becomes of it is told to `completion`, which must not be empty.
  virtual void add(const NotificationRequest& request, Completion completion) = 0;
};

}  // namespace tonelake
