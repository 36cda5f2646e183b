#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::testing {

/// The frets of every voicing, in no order that matters: each combination of frets up to
/// `options.highestFret` is made, and the rules are tested on it one by one. Slow, plain, and
/// written apart from the search, which it is there to judge. The chord must have its variant, and
/// the tuning six known names.
std::vector<std::vector<int>> listVoicingsPlainly(const Chord& chord, const TuningNames& tuning,
                                                  const Voicings::VoicingOptions& options);

/// The first fact of a voicing that its frets and fingers belie, in words; "" when they bear all
/// of them out. The cost is not looked at.
std::string wrongFact(const Voicings::Voicing& voicing);

}  // namespace tonelake::testing
