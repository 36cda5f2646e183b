#pragma once

#include <string>
#include <vector>

namespace zyndle {

/// The numerals that the words of an argument name, joined by "-" as in the catalogue: "bVII",
/// "I | V" and "I – V" are read too. A CommandError for a word that is no numeral from I to VII, in
/// capitals or small letters, with signs before it or not.
std::string readProgression(const std::vector<std::string>& words);

/// "minor" where the progression's home chord is, "i", else "major".
std::string modeOf(const std::string& progression);

}  // namespace zyndle
