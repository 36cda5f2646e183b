#pragma once

#include <optional>
#include <span>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/frets.h"

namespace tonelake {

/// What a hand may do.
struct FingerRules {
  /// Whether a barre may lie across a muted string, leaving its silence to the plucking hand:
  /// (8,x,10,9,10,8) is then held as 1,_,3,2,4,1, and by nobody otherwise.
  bool barreMayCoverMuted = false;
};

/// The most comfortable fingers for a shape, (0,3,2,0,1,0) for (-1,3,2,0,1,0); nothing when no
/// hand can hold it, with four fingers on four neighbouring frets. No pressed string: six zeros.
/// Any thread may call it at any time. Allocates nothing, and takes some ten nanoseconds but for
/// the first time that a shape is met.
TONELAKE_API std::optional<Fingers> findFingers(const Frets& frets,
                                                FingerRules rules = {}) noexcept;

/// Six frets in, of any size, -1 or less muted; six fingers out; empty when nothing is pressed or
/// the frets are not six. Of a shape that no hand can hold, the strings are held from the lowest
/// fret up as far as fingers reach, and the others are 0: (1,-1,-1,-1,-1,9) gives (1,0,0,0,0,0).
TONELAKE_API WholeNumbers assignFingers(std::span<const WholeNumber> frets);

}  // namespace tonelake
