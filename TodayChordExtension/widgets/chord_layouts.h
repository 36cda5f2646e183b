#pragma once

#include <optional>

#include "TodayChordExtension/diagram/chord_view.h"
#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

/// A chord of the day and its diagram, either of which may be missing.
struct DayChord {
  std::optional<Chord> chord;
  std::optional<ChordView> diagram;
};

/// The diagram with its board's middle at `middleX` and its highest mark at `top`; where there is
/// none an icon, `iconSide` points wide, in the middle of where it would be.
SceneItem drawPicture(const std::optional<ChordView>& diagram, double middleX, double top,
                      double scale, double iconSide);

// The chord of the day in the families of the home screen; `frame` is the widget's. Without a
// diagram the title stands alone, without a title an icon does.

SceneItems drawSmallLayout(const DayChord& chord, const Rectangle& frame);
SceneItems drawMediumLayout(const DayChord& chord, const Rectangle& frame);
SceneItems drawLargeLayout(const DayChord& chord, const Rectangle& frame);
SceneItems drawExtraLargeLayout(const DayChord& chord, const Rectangle& frame);

}  // namespace todaychord
