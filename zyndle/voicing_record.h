#pragma once

#include "Tonelake/fingering/voicing.h"
#include "Tonelake/foundation/json.h"

namespace zyndle {

/// A voicing with every fact it was judged by: {"position":[…],"fingering":[…],"cost":86,
/// "bassTone":0,"lowestFret":1,"span":2,"fingers":3,"barres":0,"innerMutes":0,
/// "soundingStrings":5,"openStrings":2}. Scripts read the keys: do not change.
tonelake::json::Value encodeVoicing(const tonelake::Voicings::Voicing& voicing);

}  // namespace zyndle
