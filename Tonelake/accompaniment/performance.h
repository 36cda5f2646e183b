#pragma once

#include <vector>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/patterns/pattern_enumerations.h"

// Music as it is to be played, note by note. Times are in ticks from the beginning.

// Pure functions: any thread may call.
namespace tonelake {

/// The length of a quarter note, in ticks.
inline constexpr WholeNumber ticksPerCrotchet = 480;

/// 1920 for a semibreve to 60 for a demisemiquaver.
TONELAKE_API WholeNumber ticksOf(NoteDuration duration) noexcept;

/// The ticks of one bar: 1440 in 3/4, 1920 in 4/4.
TONELAKE_API WholeNumber ticksOfBar(TimeSignature timeSignature) noexcept;

/// One sounding note of the guitar or the bass.
struct NoteEvent {
  WholeNumber start = 0;   ///< where the pattern has it: a whole number of demisemiquavers
  WholeNumber delay = 0;   ///< how much later it sounds, since a hand brushes string after string
  WholeNumber length = 0;  ///< counted from where it sounds, at least 1
  int noteNumber = 0;      ///< MIDI number, 60 is middle C
  int velocity = 0;        ///< 1 to 127
  int string = 0;          ///< the guitar's string, 0 the lowest; 0 for the bass

  /// Where it is heard, in ticks from the beginning.
  WholeNumber sounds() const noexcept { return start + delay; }
  /// Where it is silent again, in ticks from the beginning.
  WholeNumber end() const noexcept { return sounds() + length; }

  friend bool operator==(const NoteEvent&, const NoteEvent&) = default;
};

/// One stroke on the drums. They ring by themselves.
struct DrumEvent {
  WholeNumber start = 0;                   ///< ticks from the beginning
  DrumNoteType type = DrumNoteType::rest;  ///< never a rest
  int velocity = 0;                        ///< 1 to 127

  friend bool operator==(const DrumEvent&, const DrumEvent&) = default;
};

/// A whole piece. The events of each list are in the order in which they start.
struct Performance {
  TimeSignature timeSignature = TimeSignature::ts_44;  ///< of every bar
  WholeNumber tempo = 92;                              ///< crotchets a minute, see Accompaniment
  WholeNumber length = 0;                              ///< ticks; every note has ended by then
  std::vector<NoteEvent> guitar;                       ///< may sound together
  std::vector<NoteEvent> bass;                         ///< one after another
  std::vector<DrumEvent> drums;                        ///< may be struck together

  friend bool operator==(const Performance&, const Performance&) = default;
};

}  // namespace tonelake
