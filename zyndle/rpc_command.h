#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle rpc`; `action` is set when it is the chosen subcommand.
void addRpcCommand(CLI::App& app, Action& action);

}  // namespace zyndle
