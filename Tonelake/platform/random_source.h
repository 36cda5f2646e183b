#pragma once

#include <cstdint>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// Uniformly distributed 64-bit numbers. Safe to call from any thread.
class TONELAKE_API RandomSource {
 public:
  virtual ~RandomSource() = default;
  virtual std::uint64_t next() = 0;
};

}  // namespace tonelake
