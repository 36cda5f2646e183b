#include "Tonelake/accompaniment/chord_shape.h"

#include <algorithm>
#include <cstddef>
#include <initializer_list>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/variant.h"
#include "Tonelake/theory/octave.h"

namespace tonelake {
namespace {

// The first of the wanted semitones above the root that the chord has, else 0, the root itself.
WholeNumber firstOf(const WholeNumbers& tones, std::initializer_list<WholeNumber> wanted) {
  for (const WholeNumber semitones : wanted) {
    if (std::find(tones.begin(), tones.end(), semitones) != tones.end()) return semitones;
  }
  return 0;
}

}  // namespace

ChordPillars findPillars(const Chord& chord) {
  const int root = chord.rootNote.pitchClass();
  const ChordData* data = Chords::getChordData(chord.chordType);
  if (data == nullptr || data->notes.empty()) return {root, root, root};
  const auto pitchClass = [root](WholeNumber semitones) {
    return static_cast<int>((root + semitones) % octave);
  };
  const std::size_t bass = bassTonePlace(chord.variant, data->notes.size());
  return {pitchClass(data->notes[bass]), pitchClass(firstOf(data->notes, {4, 3, 5, 2})),
          pitchClass(firstOf(data->notes, {7, 6, 8}))};
}

}  // namespace tonelake
