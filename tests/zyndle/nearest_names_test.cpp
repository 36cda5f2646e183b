#include "zyndle/nearest_names.h"

#include <tuple>

#include <gtest/gtest.h>

namespace zyndle {
namespace {

TEST(NearestNames, CountBytesToChange) {
  const std::tuple<const char*, const char*, std::size_t, std::size_t> rows[] = {
      {"Am7", "Am7", 0, 0}, {"Am7", "Am", 3, 1},         {"Am", "Am7", 3, 1},
      {"Am7", "m7A", 3, 2}, {"kitten", "sitting", 5, 3}, {"", "abc", 3, 3}};
  for (const auto& [one, other, limit, distance] : rows) {
    EXPECT_EQ(editDistance(one, other, limit), distance) << one << other;
  }
  EXPECT_GT(editDistance("kitten", "sitting", 2), 2U);
}

}  // namespace
}  // namespace zyndle
