#include "Tonelake/theory/note_number.h"

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/octave.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake {

std::optional<NoteAndOctave> getNote(WholeNumber from) {
  constexpr WholeNumber highestNoteNumber = 127;
  if (from < 0 || from > highestNoteNumber) return std::nullopt;
  if (from < lowestSpelledNoteNumber) {
    stopWithProgrammingError("a MIDI note number from 0 to 11 has no octave");
  }
  const auto number = static_cast<std::size_t>(from);
  return NoteAndOctave{*Note::fromRawValue(notesArrayRegular[number % octave]),
                       static_cast<std::uint8_t>(number / octave - 1)};
}

}  // namespace tonelake
