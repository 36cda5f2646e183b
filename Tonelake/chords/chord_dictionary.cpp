#include "Tonelake/chords/chord_dictionary.h"

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/music_signs.h"

namespace tonelake::Chords {

std::optional<Chord> lookUpChord(std::string_view name) {
  return ChordDataManager::shared().chordNamed(withMusicSigns(name));
}

}  // namespace tonelake::Chords
