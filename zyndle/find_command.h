#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle find`; `action` is set when it is the chosen subcommand.
void addFindCommand(CLI::App& app, Action& action);

}  // namespace zyndle
