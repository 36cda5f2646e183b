#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "Desktop/zone/offset_period.h"
#include "Desktop/zone/yearly_rule.h"

namespace desktop {

/// How the clocks of one time zone are set, for all times: recorded changes up to now, and a rule
/// for the years that follow. Never changes, so any thread may ask.
class Zone {
 public:
  /// `changes` are in strictly ascending order; `initialOffset` holds before the first of them.
  /// Without a rule the last offset stays.
  Zone(std::chrono::seconds initialOffset, std::vector<OffsetChange> changes,
       std::optional<YearlyRule> rule)
      : initialOffset_(initialOffset), changes_(std::move(changes)), rule_(rule) {}

  /// The stretch that holds `moment`; the range is that of YearlyRule::periodAt.
  OffsetPeriod periodAt(date::sys_seconds moment) const;

 private:
  std::chrono::seconds initialOffset_;
  std::vector<OffsetChange> changes_;
  std::optional<YearlyRule> rule_;
};

}  // namespace desktop
