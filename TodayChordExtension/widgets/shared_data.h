#pragma once

// Internal: names the JSON library.

#include <optional>
#include <string>

#include "Tonelake/foundation/json.h"

namespace todaychord {

namespace json = tonelake::json;

/// The list that a data value of the shared settings holds; an empty one where there is no value.
/// Throws json::DecodingError for a value that is no list, no JSON or larger than
/// largestSharedData. The elements are not looked at.
json::Value parseSharedList(const std::optional<std::string>& data);

}  // namespace todaychord
