#pragma once

#include <span>
#include <string>

#include "TodayChordExtension/diagram/scene.h"
#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

/// A way to write a scene down.
struct SceneFormat {
  const char* name;  ///< of the option --format
  /// `scale` counts pixels a point, for formats that have pixels. A CommandError when it fails.
  std::string (*write)(const todaychord::Scene& scene, double scale);
};

/// Adds `zyndle widget`; `action` is set when it is the chosen subcommand. It writes SVG and JSON
/// itself. For the formats whose libraries take long to load it becomes zyndle-picture with these
/// same arguments, and there they are in `more`.
void addWidgetCommand(CLI::App& app, Action& action, Arguments arguments,
                      std::span<const SceneFormat> more = {});

}  // namespace zyndle
