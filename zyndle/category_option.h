#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/today/chord_category.h"

namespace zyndle {

/// The category that is called `text`. A CommandError for any other text than beginner, advanced
/// and jazz; it names the option or setting, `name`, that should have one.
tonelake::ChordCategory readCategory(std::string_view name, const std::string& text);

/// The category that was given with --category, if it was given, read in the same way.
std::optional<tonelake::ChordCategory> readCategory(const std::optional<std::string>& text);

/// The category of the chord of the day that the user has set.
tonelake::ChordCategory categoryAsSet();

}  // namespace zyndle
