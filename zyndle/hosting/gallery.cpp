#include "zyndle/hosting/gallery.h"

#include "TodayChordExtension/widgets/widget_view.h"
#include "zyndle/widget_names.h"

namespace zyndle {
namespace {

using todaychord::WidgetFamily;

std::string nameOf(std::string_view kind) {
  for (const WidgetName& known : widgetNames) {
    if (known.kind == kind) return known.name;
  }
  return std::string(kind);
}

}  // namespace

std::string GalleryPicture::fileName(std::string_view extension) const {
  return (widget + '-').append(family.rawValue()).append(".").append(extension);
}

std::vector<GalleryPicture> drawGallery(const std::vector<WidgetTimelines::Shown>& widgets,
                                        const todaychord::ViewSettings& settings) {
  std::vector<GalleryPicture> pictures;
  for (const WidgetTimelines::Shown& shown : widgets) {
    for (const WidgetFamily family : drawnFamilies(*shown.widget)) {
      pictures.push_back({shown.widget->displayName, nameOf(shown.widget->kind), family,
                          todaychord::drawWidget(shown.entry, family, settings)});
    }
  }
  return pictures;
}

}  // namespace zyndle
