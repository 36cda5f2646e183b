#include <fmt/format.h>

#include "Desktop/pluck_script.h"
#include "Desktop/svg_renderer.h"
#include "Tonelake/foundation/text.h"
#include "zyndle/hosting/embedded_web.h"
#include "zyndle/hosting/gallery.h"

namespace zyndle {
namespace {

using todaychord::WidgetFamily;

// {} in order: the refresh, the style, the lock screen's pictures, the home screen's, the scripts.
constexpr const char* page = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
{}<title>Zyndle widgets</title>
<style>
{}</style>
</head>
<body>
<h1>Zyndle widgets</h1>
<main>
<section class="lock" aria-label="Lock screen">
<p class="clock"></p>
{}</section>
{}</main>
<p id="link" role="status"></p>
<script>
{}</script>
<script>
{}</script>
</body>
</html>
)";

// The class names are those of the widget and of the family.
constexpr const char* figure = R"(<figure class="{} {}">
{}<figcaption>{}</figcaption>
</figure>
)";

bool isAccessory(WidgetFamily family) {
  return family.rawValue().starts_with("accessory");
}

std::string readWebFile(std::string_view name) {
  for (const tonelake::EmbeddedResource& file : embeddedWeb()) {
    if (file.fileName == name) return std::string(file.contents);
  }
  return "";
}

std::string writeFigures(const std::vector<GalleryPicture>& pictures, bool areAccessories) {
  std::string text;
  for (const GalleryPicture& picture : pictures) {
    if (isAccessory(picture.family) != areAccessories) continue;
    const std::string id = picture.fileName("svg") + '-';
    text += fmt::format(figure, picture.widget, picture.family.rawValue(),
                        desktop::renderSvg(picture.scene, {.idPrefix = id, .isPluckable = false}),
                        picture.displayName);
  }
  return text;
}

}  // namespace

std::string writeGalleryPage(const std::vector<GalleryPicture>& pictures,
                             std::optional<int> secondsToReload) {
  const std::string refresh =
      secondsToReload
          ? fmt::format("<meta http-equiv=\"refresh\" content=\"{}\">\n", *secondsToReload)
          : "";
  return fmt::format(page, refresh, readWebFile("gallery.css"), writeFigures(pictures, true),
                     writeFigures(pictures, false), desktop::pluckScript(),
                     readWebFile("gallery.js"));
}

}  // namespace zyndle
