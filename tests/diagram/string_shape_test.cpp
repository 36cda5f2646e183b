#include "TodayChordExtension/diagram/string_shape.h"

#include <gtest/gtest.h>

namespace todaychord {
namespace {

TEST(StringShape, BowsTowardsWhereItIsTouched) {
  EXPECT_EQ((StringShape{6, 0.3}.path(20, 100)), (Curve{{10, 0}, {16, 15}, {16, 65}, {10, 100}}));
  EXPECT_EQ((StringShape{-4, 1}.path(14, 80)), (Curve{{7, 0}, {3, 40}, {3, 80}, {7, 80}}));
  EXPECT_EQ((StringShape{0, 0.7}.path(14, 80)), (Curve{{7, 0}, {7, 28}, {7, 68}, {7, 80}}));
}

}  // namespace
}  // namespace todaychord
