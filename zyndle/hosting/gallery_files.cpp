#include "zyndle/hosting/gallery_files.h"

#include "Desktop/embedded_fonts.h"
#include "Desktop/files.h"
#include "Desktop/svg_renderer.h"
#include "zyndle/command_error.h"
#include "zyndle/hosting/embedded_web.h"
#include "zyndle/hosting/painted_pictures.h"
#include "zyndle/output.h"

namespace zyndle {

void prepareGallery(const GalleryOptions& options) {
  const std::string fonts = options.folder + "/fonts/";
  if (const auto problem = desktop::makeFolder(fonts)) fail(*problem);
  for (const auto& files : {desktop::embeddedFonts(), embeddedWeb()}) {
    for (const tonelake::EmbeddedResource& file : files) {
      const bool isForFonts = file.fileName.ends_with(".ttf") || file.fileName.ends_with(".txt");
      if (isForFonts) writeFile(fonts + std::string(file.fileName), file.contents);
    }
  }
}

void writeGallery(const GalleryOptions& options, const std::vector<GalleryPicture>& pictures) {
  const auto write = [&](const std::string& name, const std::string& contents) {
    writeFile(options.folder + '/' + name, contents);
  };
  for (const GalleryPicture& picture : pictures) {
    write(picture.fileName("svg"),
          desktop::renderSvg(picture.scene, {.idPrefix = "", .isPluckable = true}));
    if (options.scale) write(picture.fileName("png"), paintPng(picture.scene, *options.scale));
  }
  write("index.html", writeGalleryPage(pictures, options.secondsToReload));
}

}  // namespace zyndle
