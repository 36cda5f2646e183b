#pragma once

#include <string_view>

namespace desktop {

/// A typeface of the program, as the several kinds of picture ask for it.
struct Typeface {
  const char* name;         ///< in scenes
  const char* file;         ///< in Desktop/fonts
  const char* webFamilies;  ///< in browsers, what stands in for it included
  int weight;               ///< 100 thin to 900 heavy
};

/// The typeface of a name; for any other name the one of titles and labels.
const Typeface& typefaceCalled(std::string_view name);

/// The file that holds the music signs, which our typefaces lack.
inline constexpr const char* musicSignsFile = "NotoMusic-Regular.ttf";

/// How much those signs are raised, in font sizes: they hang low beside our letters.
inline constexpr double musicSignRise = 0.12;

/// How much larger than the letters around it a character is set. The flats of music faces are too
/// small and thin beside our letters.
double growthOf(std::string_view character);

/// Whether `character`, one of UTF-8, is ♭ ♮ ♯ 𝄪 or 𝄫.
bool isMusicSign(std::string_view character);

}  // namespace desktop
