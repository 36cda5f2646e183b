#include "Tonelake/chords/chord_note_numbers.h"

#include <cstddef>
#include <utility>

#include "Tonelake/fingering/chord_positions.h"  // naming asks for a fingering: see CONTRIBUTING
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/frets.h"
#include "Tonelake/theory/octave.h"
#include "Tonelake/theory/open_strings.h"

namespace tonelake::Chords {
namespace {

constexpr WholeNumber pianoNumberOfE = 40;

}  // namespace

WholeNumbers getNoteNumbersForChord(const Chord& chord) {
  auto numbers = findNoteNumbersForChord(chord);
  if (!numbers) stopWithProgrammingError("a chord without a fingering has no sound");
  return *std::move(numbers);
}

std::optional<WholeNumbers> findNoteNumbersForChord(const Chord& chord) {
  const auto positions = getChordPositions(chord, 1, Tuning::standard);
  if (positions.empty()) return std::nullopt;
  WholeNumbers numbers;
  for (std::size_t i = 0; i < openGuitarStrings.size(); ++i) {
    const int fret = positions.front().position[i];
    if (fret != mutedString) numbers.push_back(openGuitarStrings[i] - octave + fret);
  }
  return numbers;
}

WholeNumbers getChordPianoNotes(Note root, std::span<const WholeNumber> formula) {
  const WholeNumber base = pianoNumberOfE + root.semitoneOffset();
  WholeNumbers numbers;
  for (const WholeNumber offset : formula) {
    if (offset < -farthestPianoTone || offset > farthestPianoTone) {
      stopWithProgrammingError("a tone of a piano voicing lies too far from its root");
    }
    const WholeNumber candidate = base + offset;
    numbers.push_back(numbers.empty() ? candidate : liftAbove(numbers.back(), candidate));
  }
  return numbers;
}

}  // namespace tonelake::Chords
