#pragma once

#include "Tonelake/platform/string_table.h"
#include "zyndle/command.h"
#include "zyndle/companion.h"

namespace zyndle {

inline constexpr Companion galleryCompanion{
    "gallery", tonelake::message("Write all widgets and a page of them"), "zyndle-picture"};

/// Adds `zyndle gallery`; `action` is set when it is the chosen subcommand.
void addGalleryCommand(CLI::App& app, Action& action);

}  // namespace zyndle
