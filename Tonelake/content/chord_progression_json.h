#pragma once

// Internal: names the JSON library.

#include "Tonelake/content/chord_progression.h"
#include "Tonelake/foundation/json.h"

namespace tonelake {

/// Reads {"progression":"I-V","description":"…","styles":["Pop","Rock"]}; other keys are ignored.
/// Throws json::DecodingError.
ChordProgression decodeChordProgression(const json::Node& node);

/// The record above. Hosts store it: do not change its keys.
json::Value encodeChordProgression(const ChordProgression& progression);

}  // namespace tonelake
