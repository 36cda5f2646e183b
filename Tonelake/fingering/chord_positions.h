#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::Chords {

/// The chord's fingerings in a tuning (six names, lowest first): its preferred shapes first, the
/// rest in the order of discovery, at most `limit` of them (-1 for all; any other negative number
/// is a programming error). All have the root in the bass, whatever the variant; only chords in
/// root position have preferred shapes. Empty for an unknown chord type and for a tuning that is
/// not six known names. Any thread may call.
TONELAKE_API std::vector<ChordPosition> getChordPositions(const Chord& chord, WholeNumber limit,
                                                          const TuningNames& tuning);
/// @overload
TONELAKE_API std::vector<ChordPosition> getChordPositions(const Chord& chord, WholeNumber limit,
                                                          const TuningNames& tuning,
                                                          const ChordEngine& engine);

}  // namespace tonelake::Chords
