#pragma once

#include <cstdint>
#include <vector>

namespace tonelake {

/// A whole number without a stated width: counts, variants, intervals, frets, fingers and MIDI
/// numbers that callers hand in. Narrower types appear only where a range is stated.
using WholeNumber = std::int64_t;
/// A list of them: intervals, frets, fingers.
using WholeNumbers = std::vector<WholeNumber>;

}  // namespace tonelake
