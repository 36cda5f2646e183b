#pragma once

// Internal: names the JSON library.

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/json.h"

namespace tonelake {

inline constexpr int highestFret = 127;
inline constexpr int highestFinger = 4;

/// Reads {"position":[-1,3,2,0,1,0],"fingering":[0,3,2,0,1,0]}: six frets of -1 to
/// highestFret and six fingers of -1 to highestFinger, or none. Throws json::DecodingError.
ChordPosition decodeChordPosition(const json::Node& node);

/// The record above. Stored in settings: do not change its keys.
json::Value encodeChordPosition(const ChordPosition& position);

}  // namespace tonelake
