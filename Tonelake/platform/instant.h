#pragma once

#include <chrono>

namespace tonelake {

/// A moment in time, in microseconds from 1970-01-01T00:00:00 UTC, leap seconds not counted.
/// Microseconds rather than the clock's own unit: they reach every year a calendar can name.
using Instant = std::chrono::sys_time<std::chrono::microseconds>;

}  // namespace tonelake
