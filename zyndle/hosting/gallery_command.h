#pragma once

#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

inline constexpr Companion galleryCompanion{"gallery", "Write all widgets and a page of them",
                                            "zyndle-picture"};

/// Adds `zyndle gallery`; `action` is set when it is the chosen subcommand.
void addGalleryCommand(CLI::App& app, Action& action);

}  // namespace zyndle
