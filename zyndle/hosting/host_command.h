#pragma once

#include "Tonelake/platform/string_table.h"
#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

inline constexpr Companion hostCompanion{
    "host", tonelake::message("Keep all widgets up to date until it is stopped"), "zyndle-picture"};

/// Adds `zyndle host`; `action` is set when it is the chosen subcommand.
void addHostCommand(CLI::App& app, Action& action);

}  // namespace zyndle
