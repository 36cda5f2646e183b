#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "zyndle/instrument_options.h"

namespace zyndle {

/// The chords of one or more arguments, with blanks, commas or bar lines between their names:
/// "| C G/B | Am". A CommandError for a name that no chord has and when there is no name at all.
std::vector<tonelake::Chord> readChordRow(const std::vector<std::string>& arguments, bool inAscii);

/// Shapes for them that lie close to each other, one a chord. A CommandError that names the chord
/// which cannot be played on the instrument. Of each chord the best `limit` are considered, all
/// with a negative number.
std::vector<tonelake::Voicings::Voicing> connectRow(const std::vector<tonelake::Chord>& chords,
                                                    const Instrument& instrument,
                                                    tonelake::WholeNumber limit = -1);

}  // namespace zyndle
