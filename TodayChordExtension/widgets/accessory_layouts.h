#pragma once

#include "TodayChordExtension/widgets/chord_layouts.h"

namespace todaychord {

// The chord of the day in the families that stand beside a clock: its title alone, or an icon.
// `frame` is the widget's.

SceneItems drawCircularBackground(const Rectangle& frame);
SceneItems drawRectangularBackground(const Rectangle& frame);

SceneItems drawCircularLayout(const DayChord& chord, const Rectangle& frame);
SceneItems drawRectangularLayout(const DayChord& chord, const Rectangle& frame);
SceneItems drawInlineLayout(const DayChord& chord, const Rectangle& frame);

}  // namespace todaychord
