#include "Desktop/zone/zone.h"

#include <algorithm>
#include <iterator>

namespace desktop {

OffsetPeriod Zone::periodAt(date::sys_seconds moment) const {
  const auto next = std::ranges::upper_bound(changes_, moment, {}, &OffsetChange::moment);
  const bool isFirst = next == changes_.begin();
  const date::sys_seconds begin = isFirst ? distantPast : std::prev(next)->moment;
  if (next == changes_.end() && rule_) {
    // The rule knows nothing of the years before it came into force.
    OffsetPeriod period = rule_->periodAt(moment);
    period.begin = std::max(period.begin, begin);
    return period;
  }
  return {begin, next == changes_.end() ? distantFuture : next->moment,
          isFirst ? initialOffset_ : std::prev(next)->offset};
}

}  // namespace desktop
