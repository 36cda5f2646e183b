#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "Tonelake/foundation/api.h"

// What the notes of accompaniment patterns are made of. Raw values and names of cases are the
// encoded form: do not change them.

// Pure functions: any thread may call.
namespace tonelake {

/// The length of a note as a fraction of a whole note.
enum class NoteDuration : std::uint8_t {
  semibreve,
  minim,
  crochet,  ///< so spelled in every stored pattern: kept on purpose
  quaver,
  semiquaver,
  demisemiquaver,
};

/// 1.0 for a semibreve, half of it for each case further, 0.03125 at last.
TONELAKE_API double rawValue(NoteDuration duration) noexcept;
/// The case with exactly this raw value; nothing for any other number.
TONELAKE_API std::optional<NoteDuration> noteDurationFromRawValue(double rawValue) noexcept;

/// Three or four crotchets a bar.
enum class TimeSignature : std::uint8_t { ts_34, ts_44 };

/// "3/4" or "4/4".
TONELAKE_API std::string_view rawValue(TimeSignature timeSignature) noexcept;
/// The case with exactly this raw value; nothing for any other text.
TONELAKE_API std::optional<TimeSignature> timeSignatureFromRawValue(
    std::string_view rawValue) noexcept;

/// A voice of the drum kit with the note number that the app's drum sounds lie on, which is not
/// that of General MIDI. The low tom lies below the open hi-hat: kept on purpose.
enum class DrumNoteType : std::uint8_t {
  kick = 48,
  sidestick = 49,
  snare = 50,
  rim = 52,
  closedHH = 54,
  openHH = 58,
  lowTom = 57,
  midTom = 59,
  hiTom = 61,
  crash = 63,
  ride = 65,
  rest = 0,  ///< silence
};

/// The number that it is stored as.
constexpr std::uint8_t rawValue(DrumNoteType type) noexcept {
  return static_cast<std::uint8_t>(type);
}
/// The case with this raw value; nothing for any other number.
TONELAKE_API std::optional<DrumNoteType> drumNoteTypeFromRawValue(std::int64_t rawValue) noexcept;

/// What the picking hand does, read from a guitarist's hand on the shape of the chord. Only strings
/// that the shape lets sound are played; "upper" ones sound higher. Open C major, x32010, sounds
/// on the strings A D G B E: the thumb plays A, the fingers lie on G, B and E.
enum class ArpeggioDirection : std::uint8_t {
  /// Thumb: the lowest string. The next finger to pluck is the first again.
  t,
  /// The hand goes down, towards the floor: the finger on the next higher one of the three highest
  /// strings plucks it, beginning with the lowest of the three; after the highest it begins anew.
  /// t d d d plays A G B E on open C. Where fewer than three sound, those take their place. In a
  /// step with iii: a downstroke, see there.
  d,
  /// Bass alternate: the thumb's other string, the lowest one that sounds the chord's fifth above
  /// the lowest string and below the three highest; the string after the lowest where there is no
  /// such, and the lowest itself only where it sounds alone. Leaves the next finger as it was, so
  /// that t d b d plays A G D B on open C.
  b,
  /// The hand comes up: as d, from the highest of the three strings to the lowest. t u u u plays
  /// A E B G, and t d d d u u plays A G B E B G. In a step with iii: an upstroke, see there.
  u,
  /// Rest: the hand lies down on the strings, and what rang is silent.
  r,
  /// The three highest strings together. Alone or with t or b they are plucked at once. With d in
  /// the same step the hand brushes down over every string, lowest first; with u it brushes up over
  /// the four highest, highest first. The three then sound as strong as iii says, the strings below
  /// them as d or u says.
  iii,
};

/// What a bass player plays of the chord. The root is its bass note, of C/E the E, within the
/// octave above the open E string; octave and third lie above that, and the fifth above or, where
/// the root lies high, below.
enum class BassPitch : std::uint8_t { root, fifth, octave, third, rest };

/// Whether a string goes on sounding.
enum class NoteArticulation : std::uint8_t {
  pick,  ///< rings
  mute,  ///< damped by a hand: a short knock that has hardly a pitch
};

/// The name of the case: "t", "iii".
TONELAKE_API std::string_view caseName(ArpeggioDirection direction) noexcept;
/// The name of the case: "root", "rest".
TONELAKE_API std::string_view caseName(BassPitch pitch) noexcept;
/// The name of the case: "pick", "mute".
TONELAKE_API std::string_view caseName(NoteArticulation articulation) noexcept;

/// Nothing for any other text.
TONELAKE_API std::optional<ArpeggioDirection> arpeggioDirectionNamed(
    std::string_view name) noexcept;
/// Nothing for any other text.
TONELAKE_API std::optional<BassPitch> bassPitchNamed(std::string_view name) noexcept;
/// Nothing for any other text.
TONELAKE_API std::optional<NoteArticulation> noteArticulationNamed(std::string_view name) noexcept;

}  // namespace tonelake
