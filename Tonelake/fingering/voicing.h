#pragma once

#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/whole_number.h"

namespace tonelake::Voicings {

/// One shape of a chord with the facts it was judged by. D major over F♯ as 2, muted, 0, 2, 3, 2:
/// bass tone 1, lowest fret 2, span 1, three fingers, one of them a barre, one muted inner string,
/// five sounding strings, one of them open.
struct Voicing {
  ChordPosition position;   ///< frets, counted from the capo, and fingers
  int bassTone = 0;         ///< the chord tone in the bass, counted like Chord::variant
  int lowestFret = 0;       ///< of the pressed strings; 0 when nothing is pressed
  int span = 0;             ///< frets from the lowest to the highest pressed one, 0 to 3
  int fingers = 0;          ///< fingers in use, 0 to 4
  int barres = 0;           ///< fingers that press several strings, 0 to 3
  int innerMutes = 0;       ///< muted strings between sounding ones
  int soundingStrings = 0;  ///< 2 to 6
  int openStrings = 0;      ///< sounding strings that are not pressed
  int cost = 0;             ///< what voicings are ordered by: the less, the easier and fuller

  friend bool operator==(const Voicing&, const Voicing&) = default;
};

inline constexpr int highestCapo = 12;       ///< the last fret a capo may be on
inline constexpr int highestFretOfAll = 24;  ///< the last fret that any guitar is taken to have

/// What to look for.
struct VoicingOptions {
  WholeNumber limit = -1;  ///< at most so many voicings, the best; any negative number gives all
  /// Highest fret to press, counted from the capo; above highestFretOfAll means that one. A
  /// negative number gives no voicings.
  int highestFret = 15;
  /// Muted strings allowed between sounding ones. A negative number gives no voicings.
  int innerMutes = 1;
  /// Whether open strings may ring while the whole hand is above the fifth fret.
  bool openStringsAboveFifthFret = false;
  /// The fret of the capo, 0 (none) to highestCapo. Frets count from it, and open strings sound
  /// there. The chord asked for is the one that sounds: C major with the capo on 3 has the shapes
  /// of A major.
  int capo = 0;
};

}  // namespace tonelake::Voicings
