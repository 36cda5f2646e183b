#include <algorithm>
#include <cstddef>

#include "Tonelake/accompaniment/pattern_repetition.h"
#include "Tonelake/accompaniment/players.h"

namespace tonelake {

// A voice cannot be struck twice at once: the first time counts.
std::vector<DrumEvent> playDrums(const DrumPattern& pattern, const ChordChart& chart) {
  std::vector<DrumEvent> events;
  repeatPattern(pattern.drumNotes, chart.length(),
                [&](const DrumNote& note, WholeNumber start, bool) {
                  const std::size_t before = events.size();
                  for (const DrumMIDINote& voice : note.drumMIDINote) {
                    const int velocity = playableVelocity(voice.noteVelocity);
                    if (voice.noteType == DrumNoteType::rest || velocity == 0) continue;
                    const bool isStruck = std::any_of(
                        events.begin() + static_cast<std::ptrdiff_t>(before), events.end(),
                        [&voice](const DrumEvent& event) { return event.type == voice.noteType; });
                    if (!isStruck) events.push_back({start, voice.noteType, velocity});
                  }
                });
  return events;
}

}  // namespace tonelake
