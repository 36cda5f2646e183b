#pragma once

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The entries of the launcher: one for now, until the next local midnight.
class TONELAKE_API LauncherProvider final : public TimelineProvider<LauncherEntry> {
 public:
  explicit LauncherProvider(WidgetSources sources = WidgetSources::ofProcess());

  LauncherEntry placeholder() const override;
  void getTimeline(const std::function<void(Timeline<LauncherEntry>)>& completion) const override;

  const std::shared_ptr<const tonelake::TodayChordLibrary> library;

 private:
  WidgetSources sources_;
};

}  // namespace todaychord
