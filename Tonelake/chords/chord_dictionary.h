#pragma once

#include <optional>
#include <string_view>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/api.h"

// Any thread may call.
namespace tonelake {

/// The name index of `manager` (see ChordDataManager::chordDictionary). About 40,000 names.
TONELAKE_API ChordDataManager::ChordDictionary makeChordDictionary(const ChordDataManager& manager);

namespace Chords {

/// The chord that a typed name stands for: any name of the dictionary, "#" and "b" being read as
/// "♯" and "♭" first ("F#m7b5/E"). Nothing for an unknown name.
TONELAKE_API std::optional<Chord> lookUpChord(std::string_view name);

}  // namespace Chords
}  // namespace tonelake
