#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle collections`; `action` is set when it is the chosen subcommand.
void addCollectionsCommand(CLI::App& app, Action& action);

}  // namespace zyndle
