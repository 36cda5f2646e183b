#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle chord`; `action` is set when it is the chosen subcommand.
void addChordCommand(CLI::App& app, Action& action);

}  // namespace zyndle
