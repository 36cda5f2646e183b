#include "TodayChordExtension/diagram/pluck_spring.h"

#include <cmath>
#include <string>

#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "Tonelake/foundation/fatal.h"

namespace todaychord {

PluckSpring pluckSpring(int stringNumber) {
  if (stringNumber < 1 || stringNumber > metrics::stringCount) {
    tonelake::stopWithProgrammingError("pluckSpring: no string has the number " +
                                       std::to_string(stringNumber));
  }
  constexpr double base = 7000;
  constexpr double perString = 1000;
  PluckSpring spring;
  spring.stiffness = base - perString * stringNumber;
  return spring;
}

double PluckSpring::displacement(double seconds) const {
  // Every string is underdamped: 4 is far below 2·√(1000), the critical damping of the softest.
  const double decay = damping / (2 * mass);
  const double frequency = std::sqrt(stiffness / mass - decay * decay);
  return std::exp(-decay * seconds) *
         (std::cos(frequency * seconds) + decay / frequency * std::sin(frequency * seconds));
}

}  // namespace todaychord
