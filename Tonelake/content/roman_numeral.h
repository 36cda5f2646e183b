#pragma once

#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/diagnostics.h"

// Roman numerals as names of the chords of a key: "vi" is the minor chord on the sixth degree,
// "♭VII" the major chord a half step below the seventh.
// Pure functions: any thread may call.
namespace tonelake::RomanNumeral {

/// The number that capital letters stand for: "VI" is 6, "IV" 4, "" 0. Any other character than I,
/// V, X, L, C, D and M makes it 0 and is named in a diagnostic line.
TONELAKE_API WholeNumber valueOf(std::string_view numeral, Diagnostics& diagnostics);

/// Whether the chord is major: nothing but capital numeral letters. "" is major.
TONELAKE_API bool isMajor(std::string_view numeral) noexcept;

/// Semitones from the root of a key, minor or not, to the chord that a whole token such as "♭VII"
/// or "bVII" names. The degree goes from I to VIII, in capitals or not; a token without one, such
/// as "V7", lies 0 semitones away, whatever signs it has.
TONELAKE_API WholeNumber distanceOf(std::string_view token, bool inMinorKey);

}  // namespace tonelake::RomanNumeral
