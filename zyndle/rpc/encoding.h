#pragma once

#include <optional>

#include "Tonelake/foundation/json.h"

namespace zyndle {

namespace json = tonelake::json;

/// A JSON list of what `encode` makes of each element.
template <typename Range, typename Encode>
json::Value encodeList(const Range& range, Encode encode) {
  json::Value list = json::Value::array();
  for (const auto& element : range) list.push_back(encode(element));
  return list;
}

/// A result that may be absent: null then.
template <typename Result, typename Encode>
json::Value encodeOptional(const std::optional<Result>& result, Encode encode) {
  return result ? json::Value(encode(*result)) : json::Value(nullptr);
}

}  // namespace zyndle
