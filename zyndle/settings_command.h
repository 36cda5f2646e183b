#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle settings`; `action` is set when it is the chosen subcommand.
void addSettingsCommand(CLI::App& app, Action& action);

}  // namespace zyndle
