#pragma once

#include <span>
#include <string_view>

#include "TodayChordExtension/widgets/widget_family.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// A widget as a host lists it. The texts are shown as they stand, in every language.
struct WidgetDescription {
  std::string_view kind;         ///< the widget's identifier; hosts keep it: do not change
  std::string_view displayName;  ///< English in every language
  std::string_view description;  ///< English in every language
  std::span<const WidgetFamily> families;  ///< in the order in which a host offers them
};

/// Chord of the day.
inline constexpr std::string_view chordWidgetKind = "ZyndleChordWidget";
/// Chord of the day and tools.
inline constexpr std::string_view launcherWidgetKind = "ZyndleExtraLargeLauncher";
/// Recently viewed chords.
inline constexpr std::string_view recentChordsWidgetKind = "ZyndleExtraLargeRecentChords";
/// Collections of chords.
inline constexpr std::string_view collectionsWidgetKind = "ZyndleExtraLargeCollections";

/// The widgets of the extension. makeWidgetProvider gives each one its entries.
namespace TodayChordBundle {

/// Chord of the day, launcher, recent chords, collections.
TONELAKE_API std::span<const WidgetDescription> widgets() noexcept;

/// The widget of this kind; nullptr for an unknown one.
TONELAKE_API const WidgetDescription* findWidget(std::string_view kind) noexcept;

}  // namespace TodayChordBundle
}  // namespace todaychord
