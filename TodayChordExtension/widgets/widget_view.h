#pragma once

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_family.h"
#include "TodayChordExtension/widgets/widget_provider.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

// Any thread may draw: texts and shapes come from the ports of the process.
namespace todaychord {

/// The entry of any widget as `family` shows it. Widgets that have one family are drawn in it.
TONELAKE_API Scene drawWidget(const WidgetEntry& entry, WidgetFamily family,
                              const ViewSettings& settings);

}  // namespace todaychord
