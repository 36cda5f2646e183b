#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/tuning.h"

// Pure functions: any thread may call.
namespace tonelake {

/// A tuning that players call by a name: {"drop D", {"D", "A", "D", "G", "B", "E"}}.
struct NamedTuning {
  std::string_view name;  ///< as it is typed, in any case: "drop D"
  std::array<std::string_view, Tuning::stringCount> notes;  ///< raw values of Note, lowest first
};

/// What a typed tuning was read as: six names, or no names and what is wrong with the text.
struct ParsedTuning {
  TuningNames names;    ///< raw values of Note, lowest string first; empty when it went wrong
  std::string problem;  ///< one line, for example "the tuning is empty"; "" when it went well
};

namespace Tuning {

/// Every tuning that parseTuning knows by name, the standard one first.
TONELAKE_API std::span<const NamedTuning> namedTunings();

/// Reads a tuning the way players write it: six note names with blanks or commas between them or
/// none ("D A D G A D", "Eb,Ab,Db,Gb,Bb,Eb", "EADGBE", "eadgbe"), signs as ♯ and ♭ or "#" and "b",
/// or a name of namedTunings() ("Open G", "half-step down"). Capitals do not matter.
TONELAKE_API ParsedTuning parseTuning(std::string_view text);

}  // namespace Tuning
}  // namespace tonelake
