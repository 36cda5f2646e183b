#pragma once

#include <cstdint>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// Uniformly distributed 64-bit numbers. Safe to call from any thread.
class TONELAKE_API RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// 0 to 2⁶⁴ - 1, each as likely as any other.
  virtual std::uint64_t next() = 0;
};

}  // namespace tonelake
