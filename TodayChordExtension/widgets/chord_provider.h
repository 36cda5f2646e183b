#pragma once

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The entries of the chord-of-the-day widget: one for now, until the next local midnight.
class TONELAKE_API ChordProvider final : public TimelineProvider<ChordEntry> {
 public:
  explicit ChordProvider(WidgetSources sources = WidgetSources::ofProcess());

  ChordEntry placeholder() const override;
  void getTimeline(const std::function<void(Timeline<ChordEntry>)>& completion) const override;

  const std::shared_ptr<const tonelake::TodayChordLibrary> library;

 private:
  WidgetSources sources_;
};

}  // namespace todaychord
