#include <functional>

#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/chords/chord_dictionary.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "fuzz/fuzzer.h"
#include "zyndle/chord_name.h"

// Typed chord names: what is found bears the name, and is found again by its own.

namespace fuzz {
namespace {

namespace Chords = tonelake::Chords;
using tonelake::Chord;

void requireFoundAgain(const Chord& chord) {
  require(Chords::isShowable(chord), "a chord that is found can be shown");
  const std::string title = Chords::getTitleForChord(chord);
  require(Chords::lookUpChord(title) == chord, "a chord is found by its title");
  require(zyndle::parseChordName(title).chord == chord, "so it is where more is understood");
  require(Chords::lookUpChord(Chords::getShortestTitleForChord(chord)).has_value(),
          "the shortest title is some chord's name");
}

}  // namespace

void examine(std::string_view input) {
  const auto chord = Chords::lookUpChord(input);
  if (chord) requireFoundAgain(*chord);
  const std::string plain = zyndle::plainChordName(input);
  require(plain.empty() || plain.front() < 'a' || plain.front() > 'z', "a root is a capital");
  // An unknown name is compared with all the known ones, which takes some time: only a few are.
  constexpr std::size_t oneIn = 64;
  const bool isLikelyUnknown = !Chords::lookUpChord(plain).has_value();
  if (isLikelyUnknown && std::hash<std::string_view>()(input) % oneIn != 0) return;
  const zyndle::ParsedChordName parsed = zyndle::parseChordName(input);
  require(parsed.chord.has_value() == parsed.problem.empty(), "either a chord or a problem");
  require(parsed.problem.find('\n') == std::string::npos, "a problem is one line");
  if (chord) require(parsed.chord == chord, "what the dictionary knows stays what it is");
  if (parsed.chord) requireFoundAgain(*parsed.chord);
}

std::vector<std::string> seeds() {
  std::vector<std::string> seeds{"bbm7", "c/e",   "CMAJ7",         "C major 7", "C-7",   "Cø",
                                 "D/Gb", "F##m7", "a MINOR 7th/c", "Gm(maj7)",  "C 6/9", "Ab°"};
  for (const std::string& type : tonelake::chordTypes()) {
    const Chord chord{tonelake::Note::Ef, type, 1};
    const auto names = Chords::getAlternateTitlesForChord(chord);
    seeds.insert(seeds.end(), names.begin(), names.end());
    seeds.push_back(Chords::getTitleForChord({tonelake::Note::Fs, type, 0}));
  }
  return seeds;
}

}  // namespace fuzz
