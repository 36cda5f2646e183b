#pragma once

#include <string_view>
#include <vector>

#include "TodayChordExtension/diagram/scene.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// The square that icons are drawn on is this wide and high; nothing in an icon leaves it.
inline constexpr double iconGrid = 24;

/// Whether the program has an icon of this name: "magnifyingglass".
TONELAKE_API bool hasIcon(std::string_view name);

/// The names of all icons.
TONELAKE_API std::vector<std::string_view> iconNames();

/// The icon that `image` names, as shapes in its tint: as large as its frame allows, in the middle
/// of it. Nothing when the name is none of an icon.
TONELAKE_API SceneItems drawIcon(const ImageItem& image);

}  // namespace todaychord
