#pragma once

#include <string_view>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace tonelake::Chords {

/// Two chords to show what a chord is: C major and C minor.
TONELAKE_API std::vector<Chord> getChordSampleSet();

/// The chords of a type on the seven natural roots, C D E F G A B. Only "major" and "minor" have
/// samples; any other text, "Major" included, gives an empty list.
TONELAKE_API std::vector<Chord> getChordSampleSetForChordType(std::string_view chordType);

}  // namespace tonelake::Chords
