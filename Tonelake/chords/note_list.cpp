#include "Tonelake/chords/note_list.h"

#include <algorithm>
#include <string>

#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake {
namespace {

// " bb " is "B♭", "f#" is "F♯". Only a letter and one "b" are read as a flat, since a "B" that
// follows anything else may be a note of its own.
std::string normalizedName(std::string_view piece) {
  std::string name = replaceAll(trimmed(piece), "#", "♯");
  std::transform(name.begin(), name.end(), name.begin(), uppercase);
  const bool isFlat = name.size() == 2 && name[0] >= 'A' && name[0] <= 'G' && name[1] == 'B';
  return isFlat ? name.substr(0, 1) + "♭" : name;
}

}  // namespace

NoteList readNoteList(std::string_view notes) {
  NoteList list;
  for (const std::string_view piece : split(notes, ',')) {
    if (piece.empty()) continue;
    if (const auto pitch = pitchClassNamed(normalizedName(piece))) {
      list.pitches |= onlyPitchClass(*pitch);
      if (list.pieceCount == 0) list.firstPitch = pitch;
    }
    ++list.pieceCount;
  }
  return list;
}

}  // namespace tonelake
