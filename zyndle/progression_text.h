#pragma once

#include <string>
#include <vector>

namespace zyndle {

/// What stands between blanks, hyphens, dashes, commas and bar lines: "| I – V" gives {"I","V"}.
std::vector<std::string> splitNumerals(const std::vector<std::string>& words);

/// The numerals that the words of an argument name, joined by "-" as in the catalogue: "bVII"
/// is read too. A CommandError for a word that is no numeral from I to VII, in
/// capitals or small letters, with signs before it or not.
std::string readProgression(const std::vector<std::string>& words);

/// "minor" where the progression's home chord is, "i", else "major".
std::string modeOf(const std::string& progression);

}  // namespace zyndle
