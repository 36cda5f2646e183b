#include <fmt/format.h>

#include "Desktop/pluck_script.h"
#include "Desktop/svg_renderer.h"
#include "zyndle/hosting/embedded_web.h"
#include "zyndle/hosting/gallery.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using todaychord::WidgetFamily;

// The texts are ours and hold nothing that HTML would have to escape.
constexpr const char* page = R"(<!DOCTYPE html>
<html lang="{language}">
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
{refresh}<title>{title}</title>
<style>
{style}</style>
</head>
<body>
<h1>{title}</h1>
<main>
<section class="lock" aria-label="{lockScreen}">
<p class="clock"></p>
{accessories}</section>
{widgets}</main>
<p id="link" role="status" data-text="{leadsTo}"></p>
<script>
{pluck}</script>
<script>
{script}</script>
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
  // TRANSLATORS: the code of your language: "de", "es", ...
  const std::string language = translated("en");
  // TRANSLATORS: {} is an address, and stays {} here.
  const std::string leadsTo = translated("This leads to {}");
  return fmt::format(
      page, fmt::arg("language", language), fmt::arg("refresh", refresh),
      fmt::arg("title", translated("Zyndle widgets")),
      fmt::arg("style", tonelake::findResource(embeddedWeb(), "gallery.css").value_or("")),
      fmt::arg("lockScreen", translated("Lock screen")),
      fmt::arg("accessories", writeFigures(pictures, true)),
      fmt::arg("widgets", writeFigures(pictures, false)), fmt::arg("leadsTo", leadsTo),
      fmt::arg("pluck", desktop::pluckScript()),
      fmt::arg("script", tonelake::findResource(embeddedWeb(), "gallery.js").value_or("")));
}

}  // namespace zyndle
