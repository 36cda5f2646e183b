#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

#include "Tonelake/platform/calendar.h"

namespace zyndle {

/// Why a host is awake.
enum class WakeUp {
  start,
  time,      ///< what a duty waited for has come, or a minute has passed
  settings,  ///< the shared settings may have changed
};

/// What a host sleeps on.
class WakeUps {
 public:
  virtual ~WakeUps() = default;

  /// Sleeps until something happens, at most `longest`. Nothing when the host is to stop.
  virtual std::optional<WakeUp> wait(std::chrono::milliseconds longest) = 0;
};

/// Something that a host does: called at every wake-up, it does what is due and says when it wants
/// to be called at the latest; nothing when it does not mind. Wake-ups are frequent, so that a
/// duty with nothing to do returns at once.
using HostDuty =
    std::function<std::optional<tonelake::Instant>(WakeUp reason, tonelake::Instant now)>;

/// The clock on the wall is looked at this often, whatever the duties wait for: it may be set, and
/// a machine that was suspended sleeps on for as long as it had to when it wakes.
inline constexpr std::chrono::milliseconds longestSleep = std::chrono::minutes(1);

/// Calls the duties in their order, sleeps, and starts over until it is to stop.
void runHost(const std::vector<HostDuty>& duties, const tonelake::Calendar& calendar,
             WakeUps& wakeUps);

}  // namespace zyndle
