#pragma once

#include "Tonelake/foundation/api.h"

namespace todaychord {

/// The damped spring that a plucked string swings on, released from rest.
struct TONELAKE_API PluckSpring {
  double mass = 1;
  double stiffness = 0;
  double damping = 4;

  /// The displacement `seconds` after the release, for a release from 1.
  double displacement(double seconds) const;
};

/// Least displacement of a plucked string, design units.
inline constexpr double leastPluck = 4;

/// The spring of string 1 (the highest and stiffest) to 6.
TONELAKE_API PluckSpring pluckSpring(int stringNumber);

}  // namespace todaychord
