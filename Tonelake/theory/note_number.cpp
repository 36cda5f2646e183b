#include "Tonelake/theory/note_number.h"

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/octave.h"

namespace tonelake {

std::optional<NoteAndOctave> getNote(WholeNumber from) {
  constexpr WholeNumber highestNoteNumber = 127;
  if (from < 0 || from > highestNoteNumber) return std::nullopt;
  if (from < lowestSpelledNoteNumber) {
    stopWithProgrammingError("a MIDI note number from 0 to 11 has no octave");
  }
  return NoteAndOctave{Note::sharpOfPitchClass(static_cast<int>(from)),
                       static_cast<std::uint8_t>(from / octave - 1)};
}

}  // namespace tonelake
