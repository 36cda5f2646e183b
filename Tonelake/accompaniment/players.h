#pragma once

#include <vector>

#include "Tonelake/accompaniment/chord_chart.h"

// The three players; see perform.

namespace tonelake {

std::vector<NoteEvent> playGuitar(const ArpeggioSequence& arpeggio, const ChordChart& chart);
std::vector<NoteEvent> playBass(const BassPattern& pattern, const ChordChart& chart);
std::vector<DrumEvent> playDrums(const DrumPattern& pattern, const ChordChart& chart);

/// How long a damped string knocks, in ticks. A step takes 60 at least, and the last string of a
/// downstroke is reached after 25: it too is silent when the next step begins.
inline constexpr WholeNumber muteLength = 35;

/// A stored velocity brought into what is played: 1 (softest) to 127, 0 for silence.
constexpr int playableVelocity(WholeNumber velocity) noexcept {
  return static_cast<int>(std::clamp<WholeNumber>(velocity, 0, 127));
}

}  // namespace tonelake
