#include "Tonelake/chords/chord_json.h"

#include "Tonelake/foundation/text.h"

namespace tonelake {

Note decodeNote(const json::Node& node) {
  const auto note = Note::fromRawValue(node.text());
  if (!note) node.fail(tonelake::quoted(node.text()) + " is not a note");
  return *note;
}

Chord decodeChord(const json::Node& node) {
  return Chord{decodeNote(node.member("rootNote")), node.member("chordType").text(),
               node.member("variant").wholeNumber()};
}

json::Value encodeChord(const Chord& chord) {
  return {{"rootNote", chord.rootNote.rawValue()},
          {"chordType", chord.chordType},
          {"variant", chord.variant}};
}

}  // namespace tonelake
