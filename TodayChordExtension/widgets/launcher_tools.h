#pragma once

#include <array>
#include <string_view>

#include "Tonelake/platform/string_table.h"

namespace todaychord {

/// Title of the upper section, a key of the string table.
inline constexpr const char* launcherChordSection = tonelake::message("Today's Chord");
/// Title of the lower section, a key of the string table.
inline constexpr const char* launcherToolsSection = tonelake::message("Essential Tools");

/// A tool of the app that the launcher opens.
struct LauncherTool {
  std::string_view title;        ///< a key of the string table
  std::string_view destination;  ///< a name for namedDestination
  std::string_view image;        ///< an image of the app's own, or ""
  std::string_view systemImage;  ///< a system icon where there is no image, or ""
};

// clang-format off
/// The tools in the order in which they are shown.
inline constexpr std::array<LauncherTool, 4> launcherTools{{
    // title                             destination             image             system icon
    {tonelake::message("Tuner"),          "tuner",                "diapason",       ""},
    {tonelake::message("Metronome"),      "metronome",            "metronome",      ""},
    {tonelake::message("Reverse Lookup"), "reverse-chord-finder", "reverse-lookup", ""},
    {tonelake::message("Scan Song"),      "scan-song",            "",               "doc.text.viewfinder"},
}};
// clang-format on

}  // namespace todaychord
