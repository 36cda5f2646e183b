#pragma once

#include <optional>
#include <string_view>

#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

/// Reads a path from capital letters, each followed by its numbers:
///
///   M x y           moves to a point
///   L x y           draws a line to it
///   C x y x y x y   draws a curve: two controls, the end
///   Z               closes the outline
///   O x y r         a circle around a point
///   R x y w h r     a rectangle with round corners
///
/// The numbers may be repeated without the letter ("L1 2 3 4"). Nothing for any other text.
std::optional<Path> readIconPath(std::string_view text);

}  // namespace todaychord
