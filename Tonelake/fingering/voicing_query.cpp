#include "Tonelake/fingering/voicing_query.h"

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/variant.h"
#include "Tonelake/fingering/required_tones.h"
#include "Tonelake/fingering/voicing.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake::Voicings {
namespace {

constexpr int fifth = 7;

// The fifth that may be left out sounds all the same where it is the bass.
void setTones(const Chord& chord, const WholeNumbers& intervals, VoicingQuery& query) {
  constexpr std::size_t tonesOfPowerChord = 2;
  const int root = chord.rootNote.pitchClass();
  query.chordNotes = tonesAbove(root, intervals);
  query.requiredNotes = requiredTones(root, intervals);
  const WholeNumber bass = intervals[static_cast<std::size_t>(chord.variant)];
  query.bass = onlyTone(root, bass);
  query.fifthOfBass = onlyTone(root, bass + fifth);
  query.bassTone = static_cast<int>(chord.variant);
  query.isPowerChord = intervals.size() == tonesOfPowerChord;
}

bool setOpenPitches(const TuningNames& tuning, int capo, VoicingQuery& query) {
  if (tuning.size() != query.openPitches.size()) return false;
  for (std::size_t string = 0; string < tuning.size(); ++string) {
    const std::optional<int> open = pitchClassNamed(tuning[string]);
    if (!open) return false;
    query.openPitches[string] = (*open + capo) % octave;
  }
  return true;
}

}  // namespace

std::optional<VoicingQuery> makeVoicingQuery(const Chord& chord, const TuningNames& tuning,
                                             int capo) {
  const ChordData* data = Chords::getChordData(chord.chordType);
  if (data == nullptr || capo < 0 || capo > highestCapo) return std::nullopt;
  if (!hasVariant(chord.variant, data->notes.size())) return std::nullopt;
  VoicingQuery query;
  if (!setOpenPitches(tuning, capo, query)) return std::nullopt;
  setTones(chord, data->notes, query);
  return query;
}

}  // namespace tonelake::Voicings
