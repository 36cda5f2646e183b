#include "zyndle/chord_row.h"

#include <algorithm>
#include <string_view>

#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/fingering/voicings.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/chord_name.h"
#include "zyndle/command_error.h"

namespace zyndle {
namespace {

// The names between blanks, commas and bar lines.
std::vector<std::string> namesIn(const std::vector<std::string>& arguments) {
  constexpr std::string_view separators = " ,|\t\r\n";
  const std::string text = tonelake::join(arguments, " ");
  std::vector<std::string> names;
  std::size_t begin = text.find_first_not_of(separators);
  while (begin != std::string::npos) {
    const std::size_t end = std::min(text.find_first_of(separators, begin), text.size());
    names.push_back(text.substr(begin, end - begin));
    begin = text.find_first_not_of(separators, end);
  }
  return names;
}

}  // namespace

using tonelake::Chord;
using tonelake::Voicings::Voicing;

std::vector<Chord> readChordRow(const std::vector<std::string>& arguments, bool inAscii) {
  std::vector<Chord> chords;
  for (const std::string& name : namesIn(arguments)) {
    chords.push_back(readChordName(name, inAscii));
  }
  if (chords.empty()) refuse("CHORDS names no chord");
  return chords;
}

std::vector<Voicing> connectRow(const std::vector<Chord>& chords, const Instrument& instrument,
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

}  // namespace zyndle
