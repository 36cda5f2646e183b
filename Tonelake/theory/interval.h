#pragma once

#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"

// Pure functions: any thread may call.
namespace tonelake::Interval {

/// The name of the note `distance` semitones above `note` (a raw value of Note), written with the
/// `degree`-th letter counting the note's own as 1: (3, 3, "E♭") gives "G♭". "" when the note is
/// unknown or no spelling up to a triple sign has that letter. The pitch must stay within the
/// three octaves of the spelling tables and the degree must not fall below the letter C:
/// `isSpellable` tells; anything else is a programming error.
TONELAKE_API std::string getNoteWithDistance(WholeNumber distance, WholeNumber degree,
                                             std::string_view note);

/// Whether getNoteWithDistance may be asked (its answer may still be "").
TONELAKE_API bool isSpellable(WholeNumber distance, WholeNumber degree, std::string_view note);

/// The name of the interval that a formula token such as "♭7" stands for ("Minor Seventh"); ""
/// for any other text.
TONELAKE_API std::string getIntervalFromAlteredScaleDegree(std::string_view token);

}  // namespace tonelake::Interval
