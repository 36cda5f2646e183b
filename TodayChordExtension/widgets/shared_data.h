#pragma once

// Internal: names the JSON library.

#include <optional>
#include <string>
#include <vector>

#include "TodayChordExtension/widgets/widget_chord_collection.h"
#include "Tonelake/foundation/json.h"

namespace todaychord {

namespace json = tonelake::json;

/// The list that a data value of the shared settings holds; an empty one where there is no value.
/// Throws json::DecodingError for a value that is no list, no JSON or larger than
/// largestSharedData. The elements are not looked at.
json::Value parseSharedList(const std::optional<std::string>& data);

// What the two data values hold, all of it or nothing: what is left of a damaged list would look
// like the whole. Both throw as above, and for a damaged record.
std::vector<Chord> decodeRecentlyViewedChords(const std::optional<std::string>& data);
std::vector<WidgetChordCollection> decodeChordCollections(const std::optional<std::string>& data);

}  // namespace todaychord
