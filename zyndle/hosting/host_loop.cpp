#include "zyndle/hosting/host_loop.h"

#include <algorithm>

namespace zyndle {

using std::chrono::milliseconds;
using tonelake::Instant;

void runHost(const std::vector<HostDuty>& duties, const tonelake::Calendar& calendar,
             WakeUps& wakeUps) {
  std::optional<WakeUp> reason = WakeUp::start;
  while (reason) {
    const Instant now = calendar.now();
    Instant next = now + longestSleep;
    for (const HostDuty& duty : duties) next = std::min(next, duty(*reason, now).value_or(next));
    // The duties took their time. Rounded up, lest the host wakes just before what it waits for.
    const auto sleep = std::chrono::ceil<milliseconds>(next - calendar.now());
    reason = wakeUps.wait(std::clamp(sleep, milliseconds(0), longestSleep));
  }
}

}  // namespace zyndle
