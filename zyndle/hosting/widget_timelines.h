#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "TodayChordExtension/widgets/today_chord_bundle.h"
#include "TodayChordExtension/widgets/widget_provider.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "zyndle/hosting/host_loop.h"

namespace zyndle {

/// What every widget of the bundle shows, asked for anew when its timeline says so.
class WidgetTimelines {
 public:
  explicit WidgetTimelines(const todaychord::WidgetSources& sources);

  /// Asks for the timelines that are due: at the start, when the settings have changed, when a
  /// reload date has come; but also when the clock was set back, since the day may then be
  /// another. Returns whether any was due.
  bool refresh(WakeUp reason, tonelake::Instant now);

  /// The earliest reload date; nothing where every widget waits for the settings.
  std::optional<tonelake::Instant> nextReload() const;

  struct Shown {
    const todaychord::WidgetDescription* widget;
    todaychord::WidgetEntry entry;
  };
  /// In the order of the bundle; the placeholders before the first refresh.
  std::vector<Shown> shown() const;

 private:
  struct Row {
    const todaychord::WidgetDescription* widget;
    std::unique_ptr<const todaychord::WidgetProvider> provider;
    todaychord::WidgetEntry entry;
    std::optional<tonelake::Instant> reload;
  };

  std::vector<Row> rows_;
  tonelake::Instant lastLook_;
};

}  // namespace zyndle
