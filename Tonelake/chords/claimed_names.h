#pragma once

#include <cstddef>
#include <string>
#include <tuple>
#include <unordered_map>

#include "Tonelake/chords/chord.h"

namespace tonelake {

class ChordDataManager;

/// A chord that claims a name.
struct ClaimedChord {
  Chord chord;  ///< the claimant
  /// What the claim is worth, the smaller the more: whether the name is other than the chord's
  /// exact title, then the length of the type's name in characters.
  std::tuple<bool, std::size_t> claim;
};

/// Chords by the names that they hold.
using ClaimedNames = std::unordered_map<std::string, ClaimedChord>;

/// Lets `chord` have `name`, unless a chord that came earlier has a claim as good.
void claimName(ClaimedNames& names, const std::string& name, const ClaimedChord& chord);

/// Every name of every type and variant on `root`, as it stands and with "#" and "b". All of them
/// begin with the root, so that a name is found without those of other roots: some 1,600 of 27,000.
ClaimedNames namesOnRoot(const ChordDataManager& manager, Note root);

}  // namespace tonelake
