#pragma once

#include <cstddef>
#include <string>
#include <tuple>
#include <unordered_map>

#include "Tonelake/chords/chord.h"

namespace tonelake {

/// A chord that claims a name.
struct ClaimedChord {
  Chord chord;  ///< the claimant
  /// What the claim is worth, the smaller the more: whether the name is other than the chord's
  /// exact title, then the length of the type's name in characters.
  std::tuple<bool, std::size_t> claim;
};

/// Chords by the names that they hold.
using ClaimedNames = std::unordered_map<std::string, ClaimedChord>;

}  // namespace tonelake
