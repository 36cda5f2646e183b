#pragma once

#include "TodayChordExtension/diagram/scene.h"
#include "TodayChordExtension/widgets/widget_entries.h"
#include "TodayChordExtension/widgets/widget_view_settings.h"
#include "Tonelake/foundation/api.h"

// Any thread may draw: texts and shapes come from the ports of the process.
namespace todaychord {

/// A chord as a card: its title above its diagram, or an icon for one that cannot be shown.
struct WidgetSmallChordCell {
  Chord chord;  ///< need not be one that can be shown
};

/// Draws a card into `frame`; the whole of it is a link.
TONELAKE_API SceneItems draw(const WidgetSmallChordCell& cell, const Rectangle& frame,
                             const ViewSettings& settings);

/// The recent chords in their only family, extra-large portrait; as many as the entry's capacity.
TONELAKE_API Scene drawRecentChordsWidget(const RecentChordsEntry& entry,
                                          const ViewSettings& settings);

}  // namespace todaychord
