#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace tonelake::Chords {

/// The interval names of the chord's tones, beginning with the bass: C major over E gives "Major
/// Third", "Perfect Fifth", "Unison". The variant counts modulo the number of tones, -1
/// being the last. Empty for an unknown chord type.
TONELAKE_API std::vector<std::string> getIntervalsOfChord(const Chord& chord);

/// The same with "Root" in place of "Unison".
TONELAKE_API std::vector<std::string> getIntervalsOfChordForToday(const Chord& chord);

}  // namespace tonelake::Chords
