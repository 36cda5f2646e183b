#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/whole_number.h"
#include "zyndle/drawing.h"
#include "zyndle/instrument_options.h"

namespace zyndle {

/// A shape for each chord of a row, close to each other. Of each chord the best `limit` are
/// considered, all with a negative number. A CommandError that names a chord that cannot be played
/// on the instrument.
std::vector<tonelake::Voicings::Voicing> connectShapes(const std::vector<tonelake::Chord>& chords,
                                                       const Instrument& instrument,
                                                       tonelake::WholeNumber limit = -1);

/// The chords with their shapes, for drawing.
std::vector<NamedShape> nameShapes(const std::vector<tonelake::Chord>& chords,
                                   const std::vector<tonelake::Voicings::Voicing>& row);

}  // namespace zyndle
