#pragma once

#include <set>
#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"

namespace tonelake::testing {

/// The finder's rules written out on texts, lists and sets, step by step, over the values of the
/// shared dictionary. It judges the real searches; what the rules leave open is in display order.
class PlainChordFinder {
 public:
  PlainChordFinder();

  std::vector<Chord> findExact(const std::string& notes) const;
  std::vector<Chord> findMatching(const std::string& notes) const;

 private:
  struct Known {
    Chord chord;
    std::set<int> tones;
    int bass;
  };
  std::vector<Known> chords_;  // roots, types and variants in display order
};

}  // namespace tonelake::testing
