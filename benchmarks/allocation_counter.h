#pragma once

#include <cstddef>

namespace benchmarks {

/// Heap allocations of this program so far, of every thread.
std::size_t allocationCount() noexcept;

}  // namespace benchmarks
