#pragma once

#include <cstddef>

#include "Tonelake/foundation/whole_number.h"

namespace tonelake {

/// Whether a chord of `toneCount` tones has a variant: 0 to toneCount - 1.
constexpr bool hasVariant(WholeNumber variant, std::size_t toneCount) noexcept {
  return variant >= 0 && variant < static_cast<WholeNumber>(toneCount);
}

/// The place of the bass among `toneCount` tones, more than none, where any variant will do: it
/// counts modulo their number, with a true remainder, so that -1 is the last tone.
constexpr std::size_t bassTonePlace(WholeNumber variant, std::size_t toneCount) noexcept {
  const auto count = static_cast<WholeNumber>(toneCount);
  return static_cast<std::size_t>((variant % count + count) % count);
}

}  // namespace tonelake
