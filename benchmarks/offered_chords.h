#pragma once

#include <vector>

#include "Tonelake/chords/chord_data_manager.h"

namespace benchmarks {

/// Every type on every root, in root position.
inline std::vector<tonelake::Chord> offeredChords() {
  std::vector<tonelake::Chord> chords;
  for (const tonelake::Note root : tonelake::ChordDataManager::shared().allRootNotes()) {
    for (const std::string& type : tonelake::chordTypes()) chords.push_back({root, type, 0});
  }
  return chords;
}

}  // namespace benchmarks
