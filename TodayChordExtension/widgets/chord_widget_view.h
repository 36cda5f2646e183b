#pragma once

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_family.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

// Any thread may draw: texts and shapes come from the ports of the process.
namespace todaychord {

/// The chord of the day as a family shows it; families other than those with a layout of their own
/// are drawn as the small one, in its size. The whole widget leads to the chord. Without a chord,
/// and for one that cannot be shown, an icon stands in.
TONELAKE_API Scene drawChordWidget(const ChordEntry& entry, WidgetFamily family,
                                   const ViewSettings& settings);

}  // namespace todaychord
