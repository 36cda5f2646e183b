#include "Tonelake/chords/chord_intervals.h"

#include <algorithm>
#include <cstddef>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/variant.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/interval.h"

namespace tonelake::Chords {

std::vector<std::string> getIntervalsOfChord(const Chord& chord) {
  const ChordData* data = getChordData(chord.chordType);
  if (data == nullptr) return {};
  std::vector<std::string> names;
  for (const std::string_view token : split(data->formula, '-')) {
    names.push_back(Interval::getIntervalFromAlteredScaleDegree(token));
  }
  const std::size_t bass = bassTonePlace(chord.variant, names.size());
  std::rotate(names.begin(), names.begin() + static_cast<std::ptrdiff_t>(bass), names.end());
  return names;
}

std::vector<std::string> getIntervalsOfChordForToday(const Chord& chord) {
  std::vector<std::string> names = getIntervalsOfChord(chord);
  for (std::string& name : names) name = replaceAll(name, "Unison", "Root");
  return names;
}

}  // namespace tonelake::Chords
