#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle status`; `action` is set when it is the chosen subcommand.
void addStatusCommand(CLI::App& app, Action& action);

}  // namespace zyndle
