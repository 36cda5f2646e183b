#pragma once

#include <optional>
#include <string>

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

// Any thread may draw: texts and shapes come from the ports of the process.
namespace todaychord {

/// A tool as a card: its icon on a field of its tint, its title below.
struct ToolLauncherCard {
  std::string title;                       ///< in the user's language
  std::optional<std::string> image;        ///< an image of the app's own
  std::optional<std::string> systemImage;  ///< a system icon, where there is no image
  Color tint;                              ///< of the icon and, fainter, of its field
  std::string destination;                 ///< an address
};

/// The chord of the day as a card.
struct TodayChordLauncherCard {
  std::optional<Chord> chord;                        ///< may be missing or one that cannot be shown
  ChordCategory category = ChordCategory::beginner;  ///< told above the title
};

/// Draws a card into `frame`; the whole of it is a link.
TONELAKE_API SceneItems draw(const ToolLauncherCard& card, const Rectangle& frame);
/// @overload
TONELAKE_API SceneItems draw(const TodayChordLauncherCard& card, const Rectangle& frame,
                             const ViewSettings& settings);

/// The launcher in its only family, extra-large portrait: the chord of the day, then the tools.
TONELAKE_API Scene drawLauncherWidget(const LauncherEntry& entry, const ViewSettings& settings);

}  // namespace todaychord
