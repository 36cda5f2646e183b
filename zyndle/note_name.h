#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/theory/note.h"

namespace zyndle {

/// The note that a whole text names, its letter in any case and its signs as ♯, ♭ and 𝄪 or as "#",
/// "b" and "##": "eb", "EB", "F##".
std::optional<tonelake::Note> parseNoteName(std::string_view text);

/// The notes that the words of an argument name, with blanks, commas or hyphens between them. A
/// CommandError for a word that is no note.
std::vector<tonelake::Note> readNoteNames(const std::vector<std::string>& words);

}  // namespace zyndle
