#pragma once

#include <optional>

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/fingering/pressed_strings.h"
#include "Tonelake/theory/frets.h"

namespace tonelake {

/// The most comfortable of all assignments that the rules allow; nothing when they allow none.
/// Tries them all, which takes some hundred nanoseconds.
std::optional<Fingers> searchFingers(const PressedStrings& shape, FingerRules rules) noexcept;

}  // namespace tonelake
