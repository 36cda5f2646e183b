#pragma once

#include <string_view>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace zyndle {

/// The handful of chords one of whose names comes nearest to `name`, best first, each once:
/// "C#maj77" is nearest to C♯ major 7th. Nothing when no name is at all like it.
std::vector<tonelake::Chord> nearestChords(std::string_view name);

/// How many bytes have to be put in, left out or changed to turn one text into the other; any
/// number above `limit` when it would be more than `limit`.
std::size_t editDistance(std::string_view one, std::string_view other, std::size_t limit);

}  // namespace zyndle
