#pragma once

#include <cstdint>
#include <string>

#include "Tonelake/platform/notification_center.h"

namespace desktop {

/// A notification as it is kept until it is delivered.
struct StoredNotification {
  tonelake::NotificationRequest request;
  std::string link;           ///< where a click on it leads; "" for nowhere
  std::int64_t revision = 0;  ///< another one after every change, so that a late word about an
                              ///< earlier state changes nothing
};

}  // namespace desktop
