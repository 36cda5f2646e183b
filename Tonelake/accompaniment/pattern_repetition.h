#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

#include "Tonelake/accompaniment/performance.h"
#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {

// The time until the next step, in ticks.

inline WholeNumber lengthOf(const ArpeggioStep& step) {
  WholeNumber shortest = 0;
  for (const ArpeggioNote& note : step) {
    const WholeNumber length = ticksOf(note.noteDuration);
    shortest = shortest == 0 ? length : std::min(shortest, length);
  }
  return shortest;
}

inline WholeNumber lengthOf(const BassNote& note) {
  return ticksOf(note.noteDuration);
}

inline WholeNumber lengthOf(const DrumNote& note) {
  return ticksOf(note.noteDuration);
}

/// Calls play(step, its start, whether it is the pattern's first) for every step that takes time,
/// again and again up to the tick `end`.
template <typename Step, typename Play>
void repeatPattern(const std::vector<Step>& pattern, WholeNumber end, Play play) {
  std::vector<const Step*> steps;
  for (const Step& step : pattern) {
    if (lengthOf(step) > 0) steps.push_back(&step);
  }
  if (steps.empty()) return;
  WholeNumber start = 0;
  for (std::size_t i = 0; start < end; i = (i + 1) % steps.size()) {
    play(*steps[i], start, i == 0);
    start += lengthOf(*steps[i]);
  }
}

}  // namespace tonelake
