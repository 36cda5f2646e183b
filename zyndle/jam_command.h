#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle jam`; `action` is set when it is the chosen subcommand.
void addJamCommand(CLI::App& app, Action& action);

}  // namespace zyndle
