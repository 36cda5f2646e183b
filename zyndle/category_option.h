#pragma once

#include <optional>
#include <string>

#include "Tonelake/today/chord_category.h"

namespace zyndle {

/// The category that was given with --category, if it was given. A CommandError for any other text
/// than beginner, advanced and jazz.
std::optional<tonelake::ChordCategory> readCategory(const std::optional<std::string>& text);

/// The category of the chord of the day that the user has set.
tonelake::ChordCategory categoryAsSet();

}  // namespace zyndle
