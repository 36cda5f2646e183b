#pragma once

#include <array>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"
#include "Tonelake/platform/string_table.h"

// Pure functions: any thread may call.
namespace tonelake {

// What reminders of the chord of the day say. Keys of the string table, which are also the English
// texts: do not change. In a body, %s stands where the chord's name goes, in translations too.
// clang-format off
/// Of which one is drawn by lot for each reminder.
inline constexpr std::array<std::string_view, 7> notificationTitles{{
    "Master this chord today!",
    "Zyndle Chord Spotlight!",
    "Today's chord on Zyndle!",
    "Chord of the day!",
    "Today's new chord on Zyndle!",
    "Fresh Chord of the day!",
    "Sharpen your guitar skills",
}};
/// Of which one is drawn by lot for each reminder.
inline constexpr std::array<std::string_view, 7> notificationBodies{{
    "Today's chord is %s. Dive into its sound and feel!",
    "Explore the beauty of %s chord today. Let's play!",
    "Learn %s — a must-know chord!",
    "Warm up with %s today!",
    "Get your fingers on %s chord. Practice makes perfect!",
    "Today's pick: %s chord. Let's jam!",
    "Work on %s chord and level up your playing!",
}};
// clang-format on

/// The body in the current locale with `chordName` in its place: "Warm up with Cmaj7 today!"
TONELAKE_API std::string notificationBody(const StringTable& strings, std::string_view key,
                                          std::string_view chordName);

}  // namespace tonelake
