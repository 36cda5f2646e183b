#pragma once

#include <optional>
#include <span>

#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/frets.h"

namespace tonelake {

/// Fingers for a shape; nothing when no hand can hold it. No pressed string: six zeros.
std::optional<Fingers> findFingers(const Frets& frets) noexcept;

/// Six frets in, six fingers out; empty when nothing is pressed or the frets are not six. A
/// pressed string that no finger can hold is 0.
WholeNumbers assignFingers(std::span<const WholeNumber> frets);

}  // namespace tonelake
