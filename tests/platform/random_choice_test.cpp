#include "Tonelake/platform/random_choice.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/scripted_random.h"

namespace tonelake {
namespace {

TEST(RandomChoice, IsUnbiasedToItsEdges) {
  constexpr std::uint64_t last = ~std::uint64_t{0};
  constexpr std::uint64_t inverse = 0x6DB6'DB6D'B6DB'6DB7U;  // 7 * inverse = 1
  struct Row {
    std::uint32_t bound;
    std::deque<std::uint64_t> numbers;
    std::uint32_t result;
    std::size_t left;  // numbers that are not drawn
  };
  // Low words of 0 and 1 are rejected for 7, those below 16 for 60.
  const Row rows[] = {{7, {0, inverse, last, 5}, 6, 1},
                      {7, {1, 5}, 0, 1},
                      {7, {2 * inverse, 5}, 6, 1},
                      {7, {last / 7, 5}, 0, 1},
                      {7, {last / 7 + 1, 5}, 1, 1},
                      {16, {0, 5}, 0, 1},
                      {16, {last, 5}, 15, 1},
                      {60, {0, 1, 5}, 0, 1},
                      {1, {77, 5}, 0, 1}};
  for (const Row& row : rows) {
    testing::ScriptedRandom random;
    random.numbers = row.numbers;
    EXPECT_EQ(randomBelow(random, row.bound), row.result) << row.bound << " " << row.numbers[0];
    EXPECT_THAT(random.numbers, ::testing::SizeIs(row.left)) << row.bound << " " << row.numbers[0];
  }
}

}  // namespace
}  // namespace tonelake
