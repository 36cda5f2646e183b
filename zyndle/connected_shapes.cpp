#include "zyndle/connected_shapes.h"

#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/fingering/voicings.h"
#include "zyndle/command_error.h"

namespace zyndle {

using tonelake::Chord;
using tonelake::Voicings::Voicing;

std::vector<Voicing> connectShapes(const std::vector<Chord>& chords, const Instrument& instrument,
                                   tonelake::WholeNumber limit) {
  tonelake::Voicings::VoicingOptions options;
  options.capo = instrument.capo;
  options.limit = limit;
  std::vector<Voicing> row =
      tonelake::Voicings::connectVoicings(chords, instrument.tuning, options);
  if (!row.empty()) return row;
  for (const Chord& chord : chords) {
    if (tonelake::Voicings::findVoicings(chord, instrument.tuning, options).empty()) {
      fail("there is no way to play " + tonelake::Chords::getTitleForChord(chord) +
           " in this tuning");
    }
  }
  fail("there is no way to play these chords");
}

std::vector<NamedShape> nameShapes(const std::vector<Chord>& chords,
                                   const std::vector<Voicing>& row) {
  std::vector<NamedShape> shapes;
  for (std::size_t i = 0; i < row.size(); ++i) shapes.push_back({chords[i], row[i].position});
  return shapes;
}

}  // namespace zyndle
