#include "Tonelake/chords/chord_intervals.h"

#include <algorithm>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/theory/interval.h"

namespace tonelake::Chords {
namespace {

// Rotates left by `variant`, counted modulo the size as a true remainder: -1 is the last tone.
void startAtVariant(std::vector<std::string>& names, WholeNumber variant) {
  if (names.empty()) return;
  const auto size = static_cast<WholeNumber>(names.size());
  std::rotate(names.begin(), names.begin() + ((variant % size) + size) % size, names.end());
}

}  // namespace

std::vector<std::string> getIntervalsOfChord(const Chord& chord) {
  const ChordData* data = getChordData(chord.chordType);
  if (data == nullptr) return {};
  std::vector<std::string> names;
  for (const std::string_view token : split(data->formula, '-')) {
    names.push_back(Interval::getIntervalFromAlteredScaleDegree(token));
  }
  startAtVariant(names, chord.variant);
  return names;
}

std::vector<std::string> getIntervalsOfChordForToday(const Chord& chord) {
  std::vector<std::string> names = getIntervalsOfChord(chord);
  for (std::string& name : names) name = replaceAll(name, "Unison", "Root");
  return names;
}

}  // namespace tonelake::Chords
