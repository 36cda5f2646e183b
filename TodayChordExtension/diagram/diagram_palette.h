#pragma once

#include <array>

#include "TodayChordExtension/diagram/color.h"

// The colours of the diagram and of its card; those of strings and board are the view's own.

namespace todaychord::palette {

using ColorStops = std::array<ColorStop, 2>;

inline constexpr Color card{0x2A004E};
inline constexpr Color cardTitle{0xFFFFFF, 0.85};
inline constexpr Color accent{0xCC66DA};

// Dots are orchid, lit from above, with numbers as dark as the card.
inline constexpr ColorStops dot{{{0, {0xE6A9EC}}, {1, {0xCC66DA}}}};
inline constexpr ColorStops dotIncreasedContrast{{{0, {0xFFFFFF}}, {1, {0xF3D2F7}}}};
inline constexpr Color dotNumber{0x2A004E};
inline constexpr Color companion{0x000000};

// Glass: light at the upper rim, clear below.
inline constexpr ColorStops glass{{{0, {0xFFFFFF, 0.36}}, {1, {0xFFFFFF, 0.14}}}};
inline constexpr Color glassRim{0xFFFFFF, 0.6};
inline constexpr Color glassNumber{0xFFFFFF};
inline constexpr double glassFrost = 0.82;  // of the board's colour, so that strings stay faint

}  // namespace todaychord::palette
