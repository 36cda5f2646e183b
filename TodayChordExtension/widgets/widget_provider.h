#pragma once

#include <memory>
#include <string_view>
#include <variant>

#include "TodayChordExtension/widgets/timeline.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_sources.h"
#include "Tonelake/foundation/api.h"

// Any thread may call, and may ask a provider.
namespace todaychord {

/// An entry of any widget, for hosts that learn only at run time which one they serve.
using WidgetEntry = std::variant<ChordEntry, LauncherEntry, RecentChordsEntry, CollectionsEntry>;
/// A provider of any widget.
using WidgetProvider = TimelineProvider<WidgetEntry>;

/// The provider of the widget of this kind; nullptr for an unknown kind.
TONELAKE_API std::unique_ptr<const WidgetProvider> makeWidgetProvider(
    std::string_view kind, const WidgetSources& sources = WidgetSources::ofProcess());

}  // namespace todaychord
