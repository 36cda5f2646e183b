#include "Tonelake/content/chord_samples.h"

#include <string>

namespace tonelake::Chords {

std::vector<Chord> getChordSampleSet() {
  return {{Note::C, "major", 0}, {Note::C, "minor", 0}};
}

std::vector<Chord> getChordSampleSetForChordType(std::string_view chordType) {
  if (chordType != "major" && chordType != "minor") return {};
  std::vector<Chord> chords;
  for (const Note root : {Note::C, Note::D, Note::E, Note::F, Note::G, Note::A, Note::B}) {
    chords.push_back({root, std::string(chordType), 0});
  }
  return chords;
}

}  // namespace tonelake::Chords
