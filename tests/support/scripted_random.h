#pragma once

#include <cstdint>
#include <deque>

#include "Tonelake/platform/random_source.h"

namespace tonelake::testing {

/// Numbers in their order, and 5, which nothing rejects, when they are used up.
class ScriptedRandom final : public RandomSource {
 public:
  std::deque<std::uint64_t> numbers;
  std::uint64_t next() override {
    if (numbers.empty()) return 5;
    const std::uint64_t number = numbers.front();
    numbers.pop_front();
    return number;
  }
};

}  // namespace tonelake::testing
