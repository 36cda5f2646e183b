#pragma once

#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/json.h"
#include "zyndle/instrument_options.h"

namespace zyndle {

/// A voicing with every fact it was judged by: {"position":[…],"fingering":[…],"cost":86,
/// "bassTone":0,"lowestFret":1,"span":2,"fingers":3,"barres":0,"innerMutes":0,
/// "soundingStrings":5,"openStrings":2}. Scripts read the keys: do not change.
tonelake::json::Value encodeVoicing(const tonelake::Voicings::Voicing& voicing);

/// Chords and their shapes on an instrument: {"tuning":["E",…],"capo":0,"chords":[{"chord":…,
/// "title":"C major","voicing":…},…]}. Scripts read the keys: do not change.
tonelake::json::Value encodeRow(const std::vector<tonelake::Chord>& chords,
                                const std::vector<tonelake::Voicings::Voicing>& row,
                                const Instrument& instrument);

}  // namespace zyndle
