#pragma once

#include "Tonelake/fingering/per_string.h"

namespace tonelake {

/// One playable fingering: open C major is {-1,3,2,0,1,0} with fingers {0,3,2,0,1,0}.
struct ChordPosition {
  PerString position;   ///< fret per string, lowest first: -1 muted, 0 open, n pressed at fret n
  PerString fingering;  ///< finger per string, 0 none to 4 little; empty when nothing is pressed

  friend bool operator==(const ChordPosition&, const ChordPosition&) = default;
};

}  // namespace tonelake
