#pragma once

#include <array>
#include <string_view>

#include "Desktop/sqlite_settings_store.h"
#include "TodayChordExtension/widgets/shared_settings.h"

namespace zyndle {

/// A setting that the app, its widgets and this command share.
struct KnownSetting {
  std::string_view key;
  desktop::SettingType type;
};

// clang-format off
inline constexpr std::array<KnownSetting, 4> knownSettings{{
    {todaychord::todayChordCategoryKey,   desktop::SettingType::text},
    {todaychord::leftHandedKey,           desktop::SettingType::boolean},
    {todaychord::recentlyViewedChordsKey, desktop::SettingType::data},
    {todaychord::chordCollectionsKey,     desktop::SettingType::data},
}};
// clang-format on

}  // namespace zyndle
