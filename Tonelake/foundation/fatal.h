#pragma once

#include <string_view>

#include "Tonelake/foundation/api.h"

// Any thread may call.
namespace tonelake {

/// Stops the process because of a programming error: a broken precondition, never bad input.
/// Prints `message` as one line on standard error, then aborts; works the same in release builds.
/// An empty message prints nothing: that is for a packaged resource that is missing or damaged.
TONELAKE_API [[noreturn]] void stopWithProgrammingError(std::string_view message) noexcept;

}  // namespace tonelake
