#pragma once

#include <vector>

#include "Tonelake/accompaniment/chord_chart.h"

// The three players; see perform.

namespace tonelake {

std::vector<NoteEvent> playGuitar(const ArpeggioSequence& arpeggio, const ChordChart& chart);
std::vector<NoteEvent> playBass(const BassPattern& pattern, const ChordChart& chart);
std::vector<DrumEvent> playDrums(const DrumPattern& pattern, const ChordChart& chart);

/// How long a damped string knocks, in ticks; less than any duration.
inline constexpr WholeNumber muteLength = 40;

/// A stored velocity brought into what is played: 1 (softest) to 127, 0 for silence.
constexpr int playableVelocity(WholeNumber velocity) noexcept {
  return static_cast<int>(std::clamp<WholeNumber>(velocity, 0, 127));
}

}  // namespace tonelake
