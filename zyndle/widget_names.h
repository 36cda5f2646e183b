#pragma once

#include <string_view>
#include <vector>

#include "TodayChordExtension/widgets/today_chord_bundle.h"

namespace zyndle {

/// A widget as it is called on the command line and in the names of files.
struct WidgetName {
  const char* name;
  std::string_view kind;
};

inline constexpr WidgetName widgetNames[] = {
    {"chord", todaychord::chordWidgetKind},
    {"launcher", todaychord::launcherWidgetKind},
    {"recent", todaychord::recentChordsWidgetKind},
    {"collections", todaychord::collectionsWidgetKind},
};

/// The families that a widget is drawn in, from small to large, then accessories: those that it
/// offers to hosts, and for the chord of the day the two of a screen that has room.
std::vector<todaychord::WidgetFamily> drawnFamilies(const todaychord::WidgetDescription& widget);

}  // namespace zyndle
