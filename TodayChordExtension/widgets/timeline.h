#pragma once

#include <functional>
#include <optional>
#include <utility>
#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/instant.h"

namespace todaychord {

/// When a host asks for the next timeline.
class TimelineReloadPolicy {
 public:
  /// Only when the app asks it to.
  static TimelineReloadPolicy never() { return {}; }
  /// As soon as `date` has come.
  static TimelineReloadPolicy after(tonelake::Instant date) {
    TimelineReloadPolicy policy;
    policy.date_ = date;
    return policy;
  }

  /// Nothing for never.
  std::optional<tonelake::Instant> date() const noexcept { return date_; }

  friend bool operator==(const TimelineReloadPolicy&, const TimelineReloadPolicy&) = default;

 private:
  std::optional<tonelake::Instant> date_;
};

/// What a widget shows from now on.
template <typename Entry>
struct Timeline {
  std::vector<Entry> entries;   ///< by date; at least one
  TimelineReloadPolicy policy;  ///< when to ask again

  friend bool operator==(const Timeline&, const Timeline&) = default;
};

/// Where a host gets a widget's entries from. Keeps no state between requests; any thread may ask.
/// Completions are called once, on the asking thread, before the request returns.
template <typename Entry>
class TONELAKE_API TimelineProvider {
 public:
  virtual ~TimelineProvider() = default;

  /// An entry for now that stands in until there is a real one. Reads no settings.
  virtual Entry placeholder() const = 0;

  /// What to show from now on.
  virtual void getTimeline(const std::function<void(Timeline<Entry>)>& completion) const = 0;

  /// The first entry of the timeline.
  virtual void getSnapshot(const std::function<void(Entry)>& completion) const {
    getTimeline([&](Timeline<Entry> timeline) { completion(std::move(timeline.entries.front())); });
  }
};

}  // namespace todaychord
