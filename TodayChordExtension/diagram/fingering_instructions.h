#pragma once

#include <string>
#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"

// Pure functions: any thread may call.
namespace todaychord {

/// English sentences that say how to hold a shape: the fingers by fret, then the open strings,
/// then the muted ones. Both lists hold six values, lowest string first; otherwise there are no
/// sentences. A finger of -1 leaves its string out.
TONELAKE_API std::vector<std::string> fingeringInstructions(
    const tonelake::WholeNumbers& position, const tonelake::WholeNumbers& fingering);

/// The sentences as one text, each with its full stop; "" without any.
TONELAKE_API std::string describeFingering(const tonelake::WholeNumbers& position,
                                           const tonelake::WholeNumbers& fingering);

/// "1st", "12th", "22nd", "112th".
TONELAKE_API std::string ordinal(tonelake::WholeNumber number);

}  // namespace todaychord
