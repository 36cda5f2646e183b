#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/note.h"
#include "fuzz/fuzzer.h"
#include "tests/support/plain_chord_finder.h"

// Names of notes and typed lists of them: the searches find what the plain one of the tests finds.

namespace fuzz {
namespace {

using tonelake::Note;

// The plain finder knows fewer kinds of white space around a name. A piece of nothing but white
// space is still a piece.
std::string withPlainBlanks(std::string_view notes) {
  std::vector<std::string> pieces;
  for (const std::string_view piece : tonelake::split(notes, ',')) {
    pieces.push_back(piece.empty() ? "" : " " + std::string(tonelake::trimmed(piece)));
  }
  return tonelake::join(pieces, ",");
}

}  // namespace

void examine(std::string_view input) {
  static const tonelake::testing::PlainChordFinder plain;
  const tonelake::ChordDataManager& manager = tonelake::ChordDataManager::shared();
  const auto note = Note::fromRawValue(input);
  if (note) require(note->rawValue() == input, "a note keeps its name");

  const tonelake::NoteList list = tonelake::readNoteList(input);
  const auto pitches = static_cast<std::size_t>(tonelake::countPitchClasses(list.pitches));
  require(pitches <= list.pieceCount, "each pitch has a piece of its own");
  if (note)
    require(list.pieceCount == 1 && list.firstPitch == note->pitchClass(), "a note is read");
  const std::string notes = withPlainBlanks(input);
  require(manager.findChordsExact(input) == plain.findExact(notes), "the same chords are found");
  require(manager.findChordsMatching(input) == plain.findMatching(notes), "and the same near ones");
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"C, E, G", "e, g, Bb", "c,eb,g", " F# ,a ,\tc#,E", "D𝄪,\u00A0b"};
  for (const Note note : Note::allCases()) seeds.emplace_back(note.rawValue());
  return seeds;
}

}  // namespace fuzz
