#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle widget`; `action` is set when it is the chosen subcommand.
void addWidgetCommand(CLI::App& app, Action& action);

}  // namespace zyndle
