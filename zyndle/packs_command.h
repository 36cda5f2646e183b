#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle packs` and `zyndle pack`; `action` is set when one of them is the chosen
/// subcommand.
void addPacksCommands(CLI::App& app, Action& action);

}  // namespace zyndle
