#pragma once

#include <string>
#include <string_view>

namespace desktop {

/// The text for a terminal that knows only ASCII: "#", "b" and "##" for ♯, ♭ and 𝄪, the usual
/// stand-ins for other signs of ours, "?" for what has none.
std::string toAscii(std::string_view text);

}  // namespace desktop
