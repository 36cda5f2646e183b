#pragma once

#include "Tonelake/fingering/finger_assignment.h"
#include "Tonelake/fingering/pressed_strings.h"

namespace tonelake {

inline constexpr int indexFinger = 1;
inline constexpr int ringFinger = 3;
inline constexpr int littleFinger = 4;

/// One finger put down: on one string, or laid flat over several strings of one fret.
struct LaidFinger {
  int finger = 0;         ///< indexFinger to littleFinger; 0 before any finger is down
  int fret = 0;           ///< above the lowest pressed one, 0 to 3
  StringSet strings = 0;  ///< the strings that sound at this finger's fret
};

/// Whether `next` may be put down after `last`. Fingers go down in the order of their numbers,
/// frets from the lowest up, and on one fret from the lowest string up: so no finger is on two
/// frets, and none is behind a lower one.
bool mayLay(const LaidFinger& next, const LaidFinger& last, const PressedStrings& shape,
            FingerRules rules) noexcept;

}  // namespace tonelake
