#include "Tonelake/fingering/chord_positions.h"

#include <algorithm>
#include <span>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/foundation/fatal.h"

namespace tonelake::Chords {
namespace {

// The place of the first preferred shape with these frets; one past the last for any other.
std::ptrdiff_t rankOf(const ChordPosition& position, std::span<const Frets> preferred) {
  return std::find(preferred.begin(), preferred.end(), position.position.numbers()) -
         preferred.begin();
}

// A stable sort keeps the order of discovery among shapes of equal rank.
void putPreferredFirst(std::vector<ChordPosition>& positions, std::span<const Frets> preferred) {
  if (preferred.empty()) return;
  std::stable_sort(positions.begin(), positions.end(),
                   [&](const ChordPosition& a, const ChordPosition& b) {
                     return rankOf(a, preferred) < rankOf(b, preferred);
                   });
}

}  // namespace

std::vector<ChordPosition> getChordPositions(const Chord& chord, WholeNumber limit,
                                             const TuningNames& tuning) {
  return getChordPositions(chord, limit, tuning, ChordEngine());
}

std::vector<ChordPosition> getChordPositions(const Chord& chord, WholeNumber limit,
                                             const TuningNames& tuning, const ChordEngine& engine) {
  if (limit < -1) stopWithProgrammingError("a limit of positions is -1 or not negative");
  const ChordData* data = getChordData(chord.chordType);
  if (data == nullptr) return {};
  // Always the whole list: preference decides before the limit does.
  auto positions = engine.generateChordShapes(chord.rootNote.rawValue(), data->notes, -1, tuning);
  putPreferredFirst(positions, preferredFingerings(chord));
  if (limit != -1 && limit < static_cast<WholeNumber>(positions.size())) {
    positions.resize(static_cast<std::size_t>(limit));
  }
  return positions;
}

}  // namespace tonelake::Chords
