#pragma once

#include "Tonelake/foundation/api.h"
#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {

/// The patterns that come with the library, written for teaching: some twenty ways to pick and
/// strum, with the bass lines and grooves that go with them. Each fills whole bars, and its name is
/// its own among its kind.
struct PatternLibrary {
  ArpeggioSequences arpeggios;  ///< ways to pick and strum
  BassPatterns basses;          ///< bass lines
  DrumPatterns drums;           ///< grooves
};

/// Decoded when first asked for; kept until the process ends. Any thread may call.
TONELAKE_API const PatternLibrary& builtInPatterns();

}  // namespace tonelake
