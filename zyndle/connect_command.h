#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle connect`; `action` is set when it is the chosen subcommand.
void addConnectCommand(CLI::App& app, Action& action);

}  // namespace zyndle
