#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle progressions`; `action` is set when it is the chosen subcommand.
void addProgressionsCommand(CLI::App& app, Action& action);

}  // namespace zyndle
