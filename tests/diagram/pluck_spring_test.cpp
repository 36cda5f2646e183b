#include "TodayChordExtension/diagram/pluck_spring.h"

#include <gtest/gtest.h>

namespace todaychord {
namespace {

// The closed form against the equation of motion, m·x'' = -k·x - c·x', in steps of 10 µs.
TEST(PluckSpring, SwingsAsADampedSpringReleasedFromRest) {
  for (int string = 1; string <= 6; ++string) {
    const PluckSpring spring = pluckSpring(string);
    EXPECT_EQ(spring.stiffness, 7000 - 1000 * string);
    const double step = 1e-5;
    double place = 1;
    double speed = 0;
    for (int i = 0; i < 50'000; ++i) {
      if (i % 5000 == 0) {
        EXPECT_NEAR(spring.displacement(i * step), place, 0.01) << string << " at step " << i;
      }
      speed += step * (-spring.stiffness * place - spring.damping * speed) / spring.mass;
      place += step * speed;
    }
  }
}

}  // namespace
}  // namespace todaychord
