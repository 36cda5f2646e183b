#include "Tonelake/chords/chord_note_numbers.h"

#include <array>
#include <utility>

#include "Tonelake/fingering/chord_positions.h"  // naming asks for a fingering: see CONTRIBUTING
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/octave.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::Chords {
namespace {

// Open strings E A D G B E, an octave low.
constexpr std::array<WholeNumber, Tuning::stringCount> openStrings{28, 33, 38, 43, 47, 52};

constexpr WholeNumber pianoNumberOfE = 40;

// `candidate` lifted by whole octaves until it lies above `last`.
WholeNumber liftAbove(WholeNumber last, WholeNumber candidate) {
  if (candidate > last) return candidate;
  return candidate + ((last - candidate) / octave + 1) * octave;
}

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
  for (std::size_t i = 0; i < openStrings.size(); ++i) {
    const int fret = positions.front().position[i];
    if (fret != -1) numbers.push_back(openStrings[i] + fret);
  }
  return numbers;
}

WholeNumbers getChordPianoNotes(Note root, std::span<const WholeNumber> formula) {
  const WholeNumber base = pianoNumberOfE + root.semitoneOffset();
  WholeNumbers numbers;
  for (const WholeNumber offset : formula) {
    const WholeNumber candidate = base + offset;
    numbers.push_back(numbers.empty() ? candidate : liftAbove(numbers.back(), candidate));
  }
  return numbers;
}

}  // namespace tonelake::Chords
