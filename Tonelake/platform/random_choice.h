#pragma once

#include <cstdint>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/random_source.h"

// Any thread may call: sources of random numbers are safe.
namespace tonelake {

/// A whole number from 0 to `bound` - 1, each as likely as the others; `bound` is at least 1.
/// Draws one 64-bit number, and another one in about `bound` of 2^64 cases.
TONELAKE_API std::uint32_t randomBelow(RandomSource& random, std::uint32_t bound);

}  // namespace tonelake
