#pragma once

#include "Tonelake/fingering/finger_rules.h"

namespace tonelake {

/// What it costs the hand to put down `next` after `last`, 0 or more. The costs of all fingers add
/// up; the cheapest assignment that the rules allow is the comfortable one.
int costOfLaying(const LaidFinger& next, const LaidFinger& last,
                 const PressedStrings& shape) noexcept;

}  // namespace tonelake
