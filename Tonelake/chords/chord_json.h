#pragma once

// Internal: names the JSON library.

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/json.h"

namespace tonelake {

/// Reads {"rootNote":"C","chordType":"major","variant":0}; other keys are ignored. The root must
/// be a raw value of Note; type and variant are not checked against the dictionary. Throws
/// json::DecodingError.
TONELAKE_API Chord decodeChord(const json::Node& node);

/// The record above. Stored in settings: do not change its keys.
TONELAKE_API json::Value encodeChord(const Chord& chord);

/// A raw value of Note. Throws json::DecodingError for any other text.
Note decodeNote(const json::Node& node);

}  // namespace tonelake
