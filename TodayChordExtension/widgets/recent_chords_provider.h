#pragma once

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The entries of the recent-chords widget: one for now, until the app asks for another. The
/// chords are the first eight different ones that the user viewed; where there are fewer, common
/// chords and then those for beginners fill up. Any thread may ask.
class TONELAKE_API RecentChordsProvider final : public TimelineProvider<RecentChordsEntry> {
 public:
  /// On the platform of the process, or on what it is given.
  explicit RecentChordsProvider(WidgetSources sources = WidgetSources::ofProcess());

  RecentChordsEntry placeholder() const override;
  /// One entry, dated now, and no other until the app asks.
  void getTimeline(
      const std::function<void(Timeline<RecentChordsEntry>)>& completion) const override;

 private:
  WidgetSources sources_;
};

}  // namespace todaychord
