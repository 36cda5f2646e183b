#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle recent`; `action` is set when it is the chosen subcommand.
void addRecentCommand(CLI::App& app, Action& action);

}  // namespace zyndle
