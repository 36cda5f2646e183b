#pragma once

#include <random>
#include <string>

#include "Tonelake/chords/chord.h"
#include "Tonelake/chords/chord_data_manager.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake::testing {

/// Every chord that is offered: each root, each type, every variant.
template <typename Visit>
void forEveryChord(Visit visit) {
  for (const Note root : ChordDataManager::shared().allRootNotes()) {
    for (const std::string& type : chordTypes()) {
      const auto variants = static_cast<WholeNumber>(Chords::getChordData(type)->notes.size());
      for (WholeNumber variant = 0; variant < variants; ++variant) {
        visit(Chord{root, type, variant});
      }
    }
  }
}

inline Note randomNote(std::mt19937& random) {
  return Note::allCases()[random() % noteCount];
}

/// Of any names in any order: strings lie close, far apart or below their lower neighbours.
inline TuningNames randomTuning(std::mt19937& random) {
  TuningNames names;
  while (names.size() < Tuning::stringCount) names.emplace_back(randomNote(random).rawValue());
  return names;
}

/// Any type on any root over any of its tones.
inline Chord randomChord(std::mt19937& random) {
  const std::string& type = chordTypes()[random() % chordTypes().size()];
  const std::size_t tones = Chords::getChordData(type)->notes.size();
  return {randomNote(random), type, static_cast<WholeNumber>(random() % tones)};
}

}  // namespace tonelake::testing
