#pragma once

#include <optional>
#include <vector>

#include "Tonelake/accompaniment/chord_shape.h"
#include "Tonelake/accompaniment/performance.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {

inline constexpr WholeNumber slowestTempo = 20;   ///< crotchets a minute
inline constexpr WholeNumber fastestTempo = 400;  ///< crotchets a minute
inline constexpr WholeNumber mostBars = 256;      ///< in one piece

/// What is to be played.
struct Accompaniment {
  std::vector<ChordShape> chords;    ///< one a bar, again and again
  ArpeggioSequence arpeggio;         ///< its time signature is that of the piece
  std::optional<BassPattern> bass;   ///< none: silent
  std::optional<DrumPattern> drums;  ///< none: silent
  WholeNumber tempo = 92;            ///< crotchets a minute, slowestTempo to fastestTempo
  WholeNumber bars = 8;              ///< 0, an empty piece, to mostBars
};

/// Plays it; a number outside its range counts as the nearest inside. Each pattern is repeated from
/// its end on until the last bar is full, whatever its length is; one that takes no time is silent,
/// as is everything without a chord.
///
/// - The guitar plays what its hand does (see ArpeggioDirection). A string rings until it is struck
///   again, the hand rests or the chord changes; a muted stroke is over at once.
/// - The bass plays the chord's bass note from E to the E flat above it, third and fifth above
/// that;
///   the fifth is below it where the bass note lies high.
///
/// C major and the arpeggio t d d d in quavers begin with C, G, C and E on the strings A, G, B and
/// E at ticks 0, 240, 480 and 720. A pure function; any thread may call.
TONELAKE_API Performance perform(const Accompaniment& accompaniment);

/// Of the bass patterns linked to an arpeggio the busiest whose complexity is at most `complexity`,
/// the simplest where all are busier; null when there is none.
TONELAKE_API const BassPattern* chooseBass(const ArpeggioSequence& arpeggio,
                                           WholeNumber complexity);
/// The same of the drum patterns linked to it.
TONELAKE_API const DrumPattern* chooseDrums(const ArpeggioSequence& arpeggio,
                                            WholeNumber complexity);

}  // namespace tonelake
