#pragma once

#include <string_view>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/json.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/platform/instant.h"
#include "Tonelake/theory/tuning.h"

namespace zyndle {

namespace json = tonelake::json;

// Reading the parameters that many methods share. Each throws json::DecodingError, which names the
// parameter: "tuning: expected six strings, lowest first, not 5".

/// The parameter "chord". Its type need not be known, nor its variant exist.
tonelake::Chord chordParameter(const json::Node& parameters);

/// The parameter "chord" for operations that write the bass: a known type has the variant.
tonelake::Chord titledChordParameter(const json::Node& parameters);

/// The optional parameter "tuning": six names, known or not; standard tuning when left out.
tonelake::TuningNames tuningParameter(const json::Node& parameters);

/// A list of whole numbers, of any length.
tonelake::WholeNumbers wholeNumbers(const json::Node& list);

/// A list of six whole numbers, one a string.
tonelake::WholeNumbers sixNumbers(const json::Node& list);

/// As sixNumbers; an empty list stands for no such shape, as does one that is left out.
tonelake::WholeNumbers sixOrNoNumbers(const json::Node& list);
tonelake::WholeNumbers optionalSixNumbers(const json::Node& parameters, std::string_view key);

/// A moment as parseInstant reads it.
tonelake::Instant decodeInstant(const json::Node& node);

/// A length or a place: any number of a size that geometry cannot make infinite.
double measure(const json::Node& number);

// Optional parameters and what stands for one that is left out.
tonelake::WholeNumber wholeNumberOr(const json::Node& parameters, std::string_view key,
                                    tonelake::WholeNumber fallback);
bool flagOr(const json::Node& parameters, std::string_view key, bool fallback);

}  // namespace zyndle
