#pragma once

#include <string_view>

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

}  // namespace zyndle
