#pragma once

#include <optional>
#include <string>

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

namespace todaychord {

/// A tool as a card: its icon on a field of its tint, its title below.
struct ToolLauncherCard {
  std::string title;
  std::optional<std::string> image;        ///< an image of the app's own
  std::optional<std::string> systemImage;  ///< a system icon, where there is no image
  Color tint;
  std::string destination;  ///< an address
};

/// The chord of the day as a card.
struct TodayChordLauncherCard {
  std::optional<Chord> chord;
  ChordCategory category = ChordCategory::beginner;
};

TONELAKE_API SceneItems draw(const ToolLauncherCard& card, const Rectangle& frame);
TONELAKE_API SceneItems draw(const TodayChordLauncherCard& card, const Rectangle& frame,
                             const ViewSettings& settings);

/// The launcher in its only family, extra-large portrait: the chord of the day, then the tools.
TONELAKE_API Scene drawLauncherWidget(const LauncherEntry& entry, const ViewSettings& settings);

}  // namespace todaychord
