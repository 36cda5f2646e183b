#pragma once

#include <array>
#include <string_view>

#include "Desktop/sqlite_settings_store.h"
#include "Tonelake/platform/settings_store.h"
#include "Tonelake/today/chord_category.h"

namespace zyndle {

/// A setting that the app, its widgets and this command share.
struct KnownSetting {
  std::string_view key;
  desktop::SettingType type;
};

// Keys are what the shared suite holds: do not change.
inline constexpr std::string_view todayChordCategoryKey = "todayChordCategory";
inline constexpr std::string_view leftHandedKey = "left_handed";

// clang-format off
inline constexpr std::array<KnownSetting, 4> knownSettings{{
    {todayChordCategoryKey,  desktop::SettingType::text},
    {leftHandedKey,          desktop::SettingType::boolean},
    {"recentlyViewedChords", desktop::SettingType::data},
    {"chordCollections",     desktop::SettingType::data},
}};
// clang-format on

/// The category of the chord of the day: beginner unless another one is set.
tonelake::ChordCategory todayChordCategory(const tonelake::SettingsStore& settings);

/// Whether diagrams are mirrored: not unless it is set.
bool isLeftHanded(const tonelake::SettingsStore& settings);

}  // namespace zyndle
