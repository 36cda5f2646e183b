#pragma once

#include <string>
#include <string_view>

#include "TodayChordExtension/diagram/color.h"
#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

// The pieces of text that SVG attributes hold.

/// At most three decimals, none that are not needed, a point whatever the locale: "12", "0.5",
/// "-3.333". Numbers that are not finite are "0".
std::string formatNumber(double number);

/// "#2A004E"; the opacity goes into an attribute of its own.
std::string formatColor(const todaychord::Color& color);

/// "M1 2L3 4C5 6 7 8 9 10Z".
std::string formatPath(const todaychord::Path& path);

/// The vertical shifts (attribute dy) that raise the music signs of `text` at `fontSize`, "" when
/// it has none: our text face lacks the signs, and those of music faces hang low beside its
/// letters. "F♯m" at 10 gives "0 -1.2 1.2".
std::string formatSignShifts(std::string_view text, double fontSize);

/// `text` with U+FFFD for every byte that is no UTF-8 and every character that XML 1.0 forbids.
std::string cleanForXml(std::string_view text);

}  // namespace desktop
