#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_family.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "zyndle/hosting/widget_timelines.h"

namespace zyndle {

/// A widget in a family.
struct GalleryPicture {
  std::string_view displayName;  ///< of the widget
  std::string widget;            ///< its short name: "chord"
  todaychord::WidgetFamily family;
  todaychord::Scene scene;

  std::string fileName(std::string_view extension) const;  ///< "chord-small.svg"
};

/// Every widget in every family that it is drawn in, see drawnFamilies.
std::vector<GalleryPicture> drawGallery(const std::vector<WidgetTimelines::Shown>& widgets,
                                        const todaychord::ViewSettings& settings);

/// The pictures as one page, as they would stand on a home screen and on a locked one: their links
/// can be followed and their strings plucked. It asks for the typefaces in the folder "fonts"
/// beside it. A browser loads it again every so many seconds, where that is given.
std::string writeGalleryPage(const std::vector<GalleryPicture>& pictures,
                             std::optional<int> secondsToReload);

}  // namespace zyndle
