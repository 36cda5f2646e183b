#pragma once

#include <optional>
#include <string>

#include "zyndle/hosting/gallery_files.h"

namespace CLI {
class App;
}

namespace zyndle {

/// What is typed for a command that writes the gallery.
struct FolderOptions {
  std::string folder;
  std::optional<std::string> scale;
};

/// Adds DIR and --scale to `command`; `options` has to live as long.
void addFolderOptions(CLI::App& command, FolderOptions& options);

/// A CommandError for an option that makes no sense.
GalleryOptions readFolderOptions(const FolderOptions& options,
                                 std::optional<int> secondsToReload = std::nullopt);

}  // namespace zyndle
