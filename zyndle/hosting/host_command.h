#pragma once

#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

inline constexpr Companion hostCompanion{"host", "Keep all widgets up to date until it is stopped",
                                         "zyndle-picture"};

/// Adds `zyndle host`; `action` is set when it is the chosen subcommand.
void addHostCommand(CLI::App& app, Action& action);

}  // namespace zyndle
