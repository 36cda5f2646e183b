#include <array>

#include "Tonelake/theory/interval.h"

namespace tonelake::Interval {
namespace {

struct IntervalName {
  std::string_view token;
  std::string_view name;
};

// Formula token and name, by degree. There is no flattened fourth, octave, eleventh or fifteenth,
// kept on purpose. Facts: common music theory.
// clang-format off
constexpr std::array<IntervalName, 39> intervalNamesByDegree{{
    {"1",   "Unison"},
    {"♯1",  "Augmented Unison"},
    {"♭2",  "Minor Second"},
    {"2",   "Major Second"},
    {"♯2",  "Augmented Second"},
    {"♭3",  "Minor Third"},
    {"3",   "Major Third"},
    {"4",   "Perfect Fourth"},
    {"♯4",  "Augmented Fourth"},
    {"♭5",  "Diminished Fifth"},
    {"5",   "Perfect Fifth"},
    {"♯5",  "Augmented Fifth"},
    {"♭6",  "Minor Sixth"},
    {"6",   "Major Sixth"},
    {"♯6",  "Augmented Sixth"},
    {"♭♭7", "Diminished Seventh"},
    {"♭7",  "Minor Seventh"},
    {"7",   "Major Seventh"},
    {"♯7",  "Augmented Seventh"},
    {"8",   "Octave"},
    {"♯8",  "Augmented Octave"},
    {"♭9",  "Minor Ninth"},
    {"9",   "Major Ninth"},
    {"♯9",  "Augmented Ninth"},
    {"♭10", "Minor Tenth"},
    {"10",  "Major Tenth"},
    {"♯10", "Augmented Tenth"},
    {"11",  "Perfect Eleventh"},
    {"♯11", "Augmented Eleventh"},
    {"♭12", "Diminished Twelfth"},
    {"12",  "Perfect Twelfth"},
    {"♯12", "Augmented Twelfth"},
    {"♭13", "Minor Thirteenth"},
    {"13",  "Major Thirteenth"},
    {"♯13", "Augmented Thirteenth"},
    {"♭14", "Minor Fourteenth"},
    {"14",  "Major Fourteenth"},
    {"♯14", "Augmented Fourteenth"},
    {"15",  "Double Octave"},
}};
// clang-format on

}  // namespace

std::string getIntervalFromAlteredScaleDegree(std::string_view token) {
  for (const IntervalName& interval : intervalNamesByDegree) {
    if (interval.token == token) return std::string(interval.name);
  }
  return "";
}

}  // namespace tonelake::Interval
