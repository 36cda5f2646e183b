#pragma once

// Internal: names the JSON library.

#include "TodayChordExtension/widgets/widget_chord_collection.h"
#include "Tonelake/foundation/json.h"

namespace todaychord {

namespace json = tonelake::json;

/// Reads {"id":"7","title":"Warm-up","imageName":"acoustic","chords":[...]}; other keys are
/// ignored. Throws json::DecodingError.
WidgetChordCollection decodeWidgetChordCollection(const json::Node& node);

/// The record above. Stored in settings: do not change its keys.
json::Value encodeWidgetChordCollection(const WidgetChordCollection& collection);

}  // namespace todaychord
