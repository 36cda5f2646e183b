#include "TodayChordExtension/diagram/pluck_spring.h"

#include <cmath>

namespace todaychord {

PluckSpring pluckSpring(int stringNumber) {
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
