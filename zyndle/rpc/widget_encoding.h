#pragma once

#include "TodayChordExtension/widgets/widget_provider.h"
#include "Tonelake/foundation/json.h"

namespace zyndle {

namespace json = tonelake::json;

/// {"entries":[...],"policy":...}: each entry has the fields of its record and, under "links",
/// where its parts lead; the policy is "never" or {"after":"2025-03-08T00:00:00Z"}.
json::Value encodeTimeline(const todaychord::Timeline<todaychord::WidgetEntry>& timeline);

}  // namespace zyndle
