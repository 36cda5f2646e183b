#pragma once

// Internal: names the JSON library.

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/json.h"

namespace tonelake {

/// Reads {"position":[-1,3,2,0,1,0],"fingering":[0,3,2,0,1,0]}: six frets of -1 to 127 and six
/// fingers of -1 to 4, or none. Throws json::DecodingError.
ChordPosition decodeChordPosition(const json::Node& node);

/// The record above. Stored in settings: do not change its keys.
json::Value encodeChordPosition(const ChordPosition& position);

}  // namespace tonelake
