#pragma once

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The entries of the collections widget: one for now, until the app asks for another. The user's
/// own collections come first; curated packs fill up to seven. Any thread may ask.
class TONELAKE_API CollectionsProvider final : public TimelineProvider<CollectionsEntry> {
 public:
  /// On the platform of the process, or on what it is given.
  explicit CollectionsProvider(WidgetSources sources = WidgetSources::ofProcess());

  CollectionsEntry placeholder() const override;
  /// One entry, dated now, and no other until the app asks.
  void getTimeline(
      const std::function<void(Timeline<CollectionsEntry>)>& completion) const override;

 private:
  WidgetSources sources_;
};

}  // namespace todaychord
