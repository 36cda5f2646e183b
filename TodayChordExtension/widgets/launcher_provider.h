#pragma once

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The entries of the launcher: one for now, until the next local midnight. Any thread may ask.
class TONELAKE_API LauncherProvider final : public TimelineProvider<LauncherEntry> {
 public:
  /// On the platform of the process, or on what it is given.
  explicit LauncherProvider(WidgetSources sources = WidgetSources::ofProcess());

  LauncherEntry placeholder() const override;
  /// One entry, dated now; the next at the coming local midnight, or a day from now where the
  /// calendar finds none.
  void getTimeline(const std::function<void(Timeline<LauncherEntry>)>& completion) const override;

  /// The daily chords; not null.
  const std::shared_ptr<const tonelake::TodayChordLibrary> library;

 private:
  WidgetSources sources_;
};

}  // namespace todaychord
