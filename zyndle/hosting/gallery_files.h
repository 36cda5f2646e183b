#pragma once

#include <optional>
#include <string>
#include <vector>

#include "zyndle/hosting/gallery.h"

namespace zyndle {

struct GalleryOptions {
  std::string folder;
  std::optional<double> scale;         ///< pictures as PNG too, with so many pixels a point
  std::optional<int> secondsToReload;  ///< the page loads itself again
};

// Both replace each file in one step, so that whoever reads along never sees half of one, and
// throw a CommandError that names the file which cannot be written.

/// Makes the folder, and in it the one with the page's typefaces and their licences.
void prepareGallery(const GalleryOptions& options);

/// Writes the pictures, then "index.html".
void writeGallery(const GalleryOptions& options, const std::vector<GalleryPicture>& pictures);

}  // namespace zyndle
