#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/whole_number.h"

namespace zyndle {

/// The whole number that was given with an option such as "--limit", `fallback` when the option is
/// absent. A CommandError that names the option for any other text and for a number below `lowest`
/// or above `highest`, where there is such a bound.
tonelake::WholeNumber readNumber(std::string_view option, const std::optional<std::string>& text,
                                 tonelake::WholeNumber fallback, tonelake::WholeNumber lowest,
                                 std::optional<tonelake::WholeNumber> highest = std::nullopt);

}  // namespace zyndle
