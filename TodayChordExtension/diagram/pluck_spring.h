#pragma once

#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// The damped spring that a plucked string swings on, released from rest.
struct TONELAKE_API PluckSpring {
  double mass = 1;          ///< of the string
  double stiffness = 6000;  ///< 6000 for string 1, 1000 for string 6
  double damping = 4;       ///< how fast the swing dies away

  /// The displacement `seconds` after the release, for a release from 1.
  double displacement(double seconds) const;
};

/// Least displacement of a plucked string, design units.
inline constexpr double leastPluck = 4;

/// The spring of string 1 (the highest and stiffest) to 6. Any other number is a programming
/// error.
TONELAKE_API PluckSpring pluckSpring(int stringNumber);

}  // namespace todaychord
