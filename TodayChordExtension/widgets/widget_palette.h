#pragma once

#include <array>

#include "TodayChordExtension/diagram/color.h"

// The colours of the widgets; those of diagrams are the diagram's own. Widgets are always dark.

namespace todaychord::widgetPalette {

// Backgrounds of the chord of the day.
inline constexpr Color home{0x2A004E};   // small and medium
inline constexpr Color large{0x000023};  // large and extra large
inline constexpr std::array<ColorStop, 2> accessory{{{0, {0x000023}}, {1, {0x3E065F}}}};

// Background of the three tall widgets, from the top down.
inline constexpr std::array<ColorStop, 3> tall{
    {{0, {0x020207}}, {0.5, {0x0A0618}}, {1, {0x150C27}}}};

// Cards, from the upper left corner to the lower right one.
inline constexpr std::array<ColorStop, 2> chordCard{{{0, {0x2A004E}}, {1, {0x471396}}}};
inline constexpr std::array<ColorStop, 2> collectionCard{{{0, {0xCC66DA}}, {1, {0x6D35B5}}}};
inline constexpr Color chordCell{0x2A004E};
inline constexpr Color toolCard{0x1C1235};
inline constexpr Color collectionCaption{0x1C1235};  // below the artwork, so that text is readable
inline constexpr Color cardRim{0xFFFFFF, 0.08};

// Texts and icons.
inline constexpr Color title{0xFFFFFF, 0.85};
inline constexpr Color heading{0xFFFFFF};
inline constexpr Color subtitle{0xFFFFFF, 0.66};
inline constexpr Color accent{0xCC66DA};
inline constexpr Color artwork{0xFFFFFF};
inline constexpr Color ring{0xFFFFFF, 0.5};
inline constexpr Color quietIcon{0xCC66DA, 0.7};  // where there is no chord to show

// Buttons.
inline constexpr Color button{0xCC66DA};
inline constexpr Color buttonText{0x2A004E};
inline constexpr Color quietButton{0xFFFFFF, 0.1};

// A tool's icon in the order of the tools, and how much of it shines through the icon's field.
inline constexpr std::array<Color, 4> toolTints{{{0xE08BEA}, {0x8FB4FF}, {0x7FDCC4}, {0xFFC680}}};
inline constexpr double toolFieldOpacity = 0.16;

}  // namespace todaychord::widgetPalette
