#pragma once

#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/notification_center.h"

namespace tonelake {

/// A center that keeps what it is handed for its owner to look at, and delivers none of it.
class TONELAKE_API NotificationRequestList final : public NotificationCenter {
 public:
  /// Keeps the request and reports success, before it returns. One thread at a time.
  void add(const NotificationRequest& request, Completion completion) override {
    requests.push_back(request);
    completion(std::nullopt);
  }

  std::vector<NotificationRequest> requests;  ///< as they came; none replaces another
};

}  // namespace tonelake
