#pragma once

#include <string>

#include "Tonelake/patterns/arpeggio_sequence.h"

namespace zyndle {

/// A pattern as a grid of signs in ASCII: a row for each voice, a column for each moment.
///
///                 |1 & 2 & 3 & 4 &
///     finger up   |- - - . - - - .
///     thumb       |O - - - o - - -
///
/// O is loud, o medium, . soft, x muted, * a rest and - nothing new. Bars are drawn beside each
/// other as far as a page is wide. The names of the rows are in the language of this run.
std::string drawGrid(const tonelake::ArpeggioSequence& pattern);
std::string drawGrid(const tonelake::BassPattern& pattern);
std::string drawGrid(const tonelake::DrumPattern& pattern);

/// A line that explains the signs of a grid.
std::string gridLegend();

}  // namespace zyndle
