#include "Tonelake/chords/chord_dictionary.h"

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/text.h"

namespace tonelake::Chords {

std::optional<Chord> lookUpChord(std::string_view name) {
  // No chord name holds a "b" that is not a flat, so reading every one as "♭" is safe.
  return ChordDataManager::shared().chordNamed(replaceAll(replaceAll(name, "#", "♯"), "b", "♭"));
}

}  // namespace tonelake::Chords
