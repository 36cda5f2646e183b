#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/pitch_class_set.h"

// Pure functions: any thread may call.
namespace tonelake {

/// What a typed list of notes such as "e, g, Bb" names.
struct NoteList {
  std::size_t pieceCount = 0;     ///< between commas, empty ones left out, note or not
  std::optional<int> firstPitch;  ///< pitch class of the first piece, where that is a note
  PitchClassSet pitches = 0;      ///< of all pieces that are notes
};

/// Reads note names with commas between them. White space around a name and its case do not
/// matter, "#" is "♯", and a letter with "b" is a flat: "eb" is E♭, "bb" B♭.
TONELAKE_API NoteList readNoteList(std::string_view notes);

}  // namespace tonelake
