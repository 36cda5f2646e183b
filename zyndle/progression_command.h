#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle progression`; `action` is set when it is the chosen subcommand.
void addProgressionCommand(CLI::App& app, Action& action);

}  // namespace zyndle
