#pragma once

// Internal: names the JSON library.

#include <string>
#include <utility>
#include <vector>

#include "Tonelake/chords/chord_data.h"
#include "Tonelake/foundation/json.h"

namespace tonelake {

/// The dictionary text: one object with the key "chords", chord-type names to definitions.
struct ChordsWrapper {
  std::vector<std::pair<std::string, ChordDefinition>> chords;  ///< in the order of the text
};

/// Throws json::DecodingError.
ChordsWrapper decodeChordsWrapper(const json::Node& node);

}  // namespace tonelake
