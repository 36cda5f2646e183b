#include <algorithm>

#include "Tonelake/accompaniment/pattern_repetition.h"
#include "Tonelake/accompaniment/players.h"
#include "Tonelake/theory/octave.h"
#include "Tonelake/theory/open_strings.h"

namespace tonelake {
namespace {

// A bass note from here up, the B on the second fret of the second string, has its fifth below
// where the instrument has it there.
constexpr int highBassNote = 35;

// The MIDI number; only for pitches that sound.
int bassNoteNumber(BassPitch pitch, const Chord& chord) {
  const ChordPillars pillars = findPillars(chord);
  const int root = liftAbove(openBassString - 1, pillars.bass);
  switch (pitch) {
    case BassPitch::third:
      return liftAbove(root, pillars.third);
    case BassPitch::fifth: {
      const int above = liftAbove(root, pillars.fifth);
      const int below = above - octave;
      return root >= highBassNote && below >= openBassString ? below : above;
    }
    case BassPitch::octave:
      return root + octave;
    case BassPitch::root:
    case BassPitch::rest:
      break;
  }
  return root;
}

}  // namespace

std::vector<NoteEvent> playBass(const BassPattern& pattern, const ChordChart& chart) {
  std::vector<NoteEvent> events;
  repeatPattern(
      pattern.bassNotes, chart.length(), [&](const BassNote& note, WholeNumber start, bool) {
        const int velocity = playableVelocity(note.noteVelocity);
        if (note.pitch == BassPitch::rest || velocity == 0) return;
        const bool isMuted = note.noteArticulation == NoteArticulation::mute;
        const WholeNumber length = isMuted ? muteLength : lengthOf(note);
        events.push_back({start, 0, std::min(length, chart.endOfChord(start) - start),
                          bassNoteNumber(note.pitch, chart.at(start).chord), velocity, 0});
      });
  return events;
}

}  // namespace tonelake
