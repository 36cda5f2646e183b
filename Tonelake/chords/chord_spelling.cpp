#include "Tonelake/chords/chord_spelling.h"

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/formula_degree.h"
#include "Tonelake/chords/variant.h"
#include "Tonelake/foundation/fatal.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/interval.h"

namespace tonelake {
std::vector<std::string> spellTones(Note root, const ChordData& data) {
  const auto pieces = split(data.formula, '-');
  if (pieces.size() > data.notes.size()) {
    stopWithProgrammingError("a chord formula has more degrees than tones");
  }
  std::vector<std::string> tones;
  tones.reserve(pieces.size());
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    tones.push_back(
        Interval::getNoteWithDistance(data.notes[i], degreeOf(pieces[i]), root.rawValue()));
  }
  return tones;
}

namespace Chords {

std::vector<std::string> getNotesOfChord(const Chord& chord) {
  const ChordData* data = getChordData(chord.chordType);
  return data == nullptr ? std::vector<std::string>() : spellTones(chord.rootNote, *data);
}

bool isShowable(const Chord& chord) {
  const ChordData* data = getChordData(chord.chordType);
  return data != nullptr && hasVariant(chord.variant, data->notes.size());
}

}  // namespace Chords
}  // namespace tonelake
