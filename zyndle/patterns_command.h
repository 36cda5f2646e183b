#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle patterns`; `action` is set when it is the chosen subcommand.
void addPatternsCommand(CLI::App& app, Action& action);

}  // namespace zyndle
