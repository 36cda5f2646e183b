#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/platform/instant.h"

namespace zyndle {

/// The moment that an RFC 3339 text stands for: "2025-03-07T09:00:00Z",
/// "2025-03-07t10:00:00.25+01:00". Years 0000 to 9999, in UTC as well; digits beyond microseconds
/// are dropped. Second 60 is taken where a leap second can be, in the last minute of a UTC month,
/// and stands for the last microsecond of that minute, so that it keeps its day. Nothing for any
/// other text: impossible dates, a missing offset, blanks.
std::optional<tonelake::Instant> parseInstant(std::string_view text);

/// The moment in UTC as parseInstant reads it: "2025-03-07T09:00:00Z", and six further digits
/// where it is no whole second: "2025-03-07T09:00:00.250000Z".
std::string formatInstant(tonelake::Instant instant);

}  // namespace zyndle
