#pragma once

#include <cstdint>
#include <vector>

#include "Tonelake/accompaniment/chord_shape.h"
#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {

/// One string that is struck.
struct Pluck {
  int string = 0;         ///< 0 the lowest
  WholeNumber delay = 0;  ///< ticks after the beginning of the step
  NoteArticulation articulation = NoteArticulation::pick;
  std::uint8_t velocity = 0;

  friend bool operator==(const Pluck&, const Pluck&) = default;
};

/// What the hand does in one step.
struct HandMotion {
  bool silencesStrings = false;  ///< first of all it lies down on them
  std::vector<Pluck> plucks;     ///< each string once
};

/// The hand that picks and strums; ArpeggioDirection tells how. It remembers which finger plucked
/// last.
class PickingHand {
 public:
  /// On the first step of `step`'s pattern, use a new hand.
  HandMotion play(const ArpeggioStep& step, const ChordShape& shape);

 private:
  // The next of `count` fingers on so many strings.
  int nextDown(int count);
  int nextUp(int count);

  int finger_ = -1;  // 0 on the lowest of their strings, -1 when none has plucked yet
};

}  // namespace tonelake
