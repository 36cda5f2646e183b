#include "zyndle/note_name.h"

#include "Tonelake/foundation/text.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {

using tonelake::Note;
using tonelake::replaceAll;

std::optional<Note> parseNoteName(std::string_view text) {
  if (text.empty()) return std::nullopt;
  std::string signs = replaceAll(text.substr(1), "#", "♯");
  signs = replaceAll(replaceAll(signs, "b", "♭"), "B", "♭");
  return Note::fromRawValue(tonelake::uppercase(text.front()) + replaceAll(signs, "♯♯", "𝄪"));
}

std::vector<Note> readNoteNames(const std::vector<std::string>& words) {
  constexpr std::string_view separators = " ,;-|\t\r\n";
  const std::string text = tonelake::join(words, " ");
  std::vector<Note> notes;
  for (const std::string_view name : tonelake::splitWords(text, separators)) {
    const std::optional<Note> note = parseNoteName(name);
    if (!note) {
      refuse(
          translated("{} is not a note name; notes look like C, F# or Bb", tonelake::quoted(name)));
    }
    notes.push_back(*note);
  }
  return notes;
}

}  // namespace zyndle
