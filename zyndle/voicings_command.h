#pragma once

#include "zyndle/command.h"

namespace CLI {
class App;
}

namespace zyndle {

/// Adds `zyndle voicings`; `action` is set when it is the chosen subcommand.
void addVoicingsCommand(CLI::App& app, Action& action);

}  // namespace zyndle
