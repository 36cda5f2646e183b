#include "Tonelake/platform/random_choice.h"

namespace tonelake {
namespace {

// The 64 bits above the lowest 64 of the product.
std::uint32_t highWord(std::uint64_t number, std::uint32_t factor) {
  const std::uint64_t low = (number & 0xFFFF'FFFFU) * factor;
  const std::uint64_t high = (number >> 32U) * factor + (low >> 32U);
  return static_cast<std::uint32_t>(high >> 32U);
}

}  // namespace

// number * bound / 2^64 cuts the 2^64 numbers into `bound` stretches. A stretch holds the same
// count of products for each result once the 2^64 mod bound lowest remainders are left out: for 7
// that is 2^64 mod 7 = 2, so that a product whose low word is 0 or 1 is drawn again.
std::uint32_t randomBelow(RandomSource& random, std::uint32_t bound) {
  const std::uint64_t biased = (0 - std::uint64_t{bound}) % bound;
  std::uint64_t number = random.next();
  while (number * bound < biased) number = random.next();
  return highWord(number, bound);
}

}  // namespace tonelake
