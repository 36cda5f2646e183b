#include "zyndle/hosting/folder_options.h"

#include <CLI/CLI.hpp>

#include "zyndle/command_error.h"
#include "zyndle/scale_option.h"
#include "zyndle/translation.h"

namespace zyndle {

void addFolderOptions(CLI::App& command, FolderOptions& options) {
  command.add_option("DIR", options.folder, translated("The folder, made where it is missing"))
      ->required()
      ->type_name("");
  command
      .add_option("--scale", options.scale,
                  translated("Write PNG too, with so many pixels a point"))
      ->type_name("NUMBER");
}

GalleryOptions readFolderOptions(const FolderOptions& options, std::optional<int> secondsToReload) {
  if (options.folder.empty()) refuse(translated("{} is empty", "DIR"));
  const auto scale = options.scale ? std::optional(readScale(*options.scale)) : std::nullopt;
  return {options.folder, scale, secondsToReload};
}

}  // namespace zyndle
