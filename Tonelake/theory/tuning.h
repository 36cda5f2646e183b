#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace tonelake {

/// Open-string note names (raw values of Note), lowest string first; six for a guitar.
using TuningNames = std::vector<std::string>;

namespace Tuning {

/// Strings of the instrument that fingerings are made for.
inline constexpr std::size_t stringCount = 6;

/// E A D G B E.
inline const TuningNames standard{"E", "A", "D", "G", "B", "E"};

}  // namespace Tuning
}  // namespace tonelake
