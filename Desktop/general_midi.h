#pragma once

#include "Tonelake/patterns/pattern_enumerations.h"

// What General MIDI, the standard that synthesizers share, calls our instruments.

namespace desktop::general_midi {

// Programs, counted from 0.
inline constexpr int steelGuitar = 25;
inline constexpr int fingeredBass = 33;
inline constexpr int standardDrumKit = 0;

/// The channel of the drums, counted from 0: the tenth.
inline constexpr int drumChannel = 9;

/// The note on the drum channel that sounds like one of our voices; 0 for a rest.
constexpr int drumNote(tonelake::DrumNoteType type) noexcept {
  using tonelake::DrumNoteType;
  switch (type) {
    case DrumNoteType::kick:
      return 36;
    case DrumNoteType::sidestick:
      return 37;
    case DrumNoteType::snare:
      return 38;
    case DrumNoteType::rim:
      return 40;  // a second, harder snare; the standard has no rim shot
    case DrumNoteType::closedHH:
      return 42;
    case DrumNoteType::openHH:
      return 46;
    case DrumNoteType::lowTom:
      return 45;
    case DrumNoteType::midTom:
      return 47;
    case DrumNoteType::hiTom:
      return 50;
    case DrumNoteType::crash:
      return 49;
    case DrumNoteType::ride:
      return 51;
    case DrumNoteType::rest:
      break;
  }
  return 0;
}

}  // namespace desktop::general_midi
