#include "zyndle/hosting/folder_options.h"

#include "zyndle/command_error.h"
#include "zyndle/command_options.h"
#include "zyndle/scale_option.h"
#include "zyndle/translation.h"

namespace zyndle {

void addFolderOptions(CLI::App& command, FolderOptions& options) {
  addArgument(command, "DIR", options.folder, message("The folder, made where it is missing"));
  addOption(command, "--scale", options.scale,
            message("Write PNG too, with so many pixels a point"), "NUMBER");
}

GalleryOptions readFolderOptions(const FolderOptions& options, std::optional<int> secondsToReload) {
  if (options.folder.empty()) refuse(translated("{} is empty", "DIR"));
  const auto scale = options.scale ? std::optional(readScale(*options.scale)) : std::nullopt;
  return {options.folder, scale, secondsToReload};
}

}  // namespace zyndle
