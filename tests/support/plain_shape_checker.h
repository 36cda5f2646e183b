#pragma once

#include <string>
#include <vector>

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::testing {

/// The generator's rules written out on texts and lists, step by step and without a thought for
/// speed. It judges the real search: every chord, every tuning, the same shapes in the same order.
std::vector<ChordPosition> generatePlainly(const std::string& rootNote,
                                           const WholeNumbers& intervals, WholeNumber limit,
                                           const TuningNames& tuning);

}  // namespace tonelake::testing
