#pragma once

#include <functional>

namespace zyndle {

/// What the chosen subcommand does once the whole command line has been read; returns when it is
/// done and throws a CommandError when it cannot be done.
using Action = std::function<void()>;

}  // namespace zyndle
