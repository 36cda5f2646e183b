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

/// How a music sign of that face is set among our letters, beside which sharps hang low and flats
/// are small.
struct MusicSign {
  std::string_view character;
  double rise = 0;    ///< of its baseline, in font sizes of the line
  double growth = 1;  ///< of its own font size
};

/// How ♭ ♮ ♯ 𝄪 and 𝄫 are set; every other character, one of UTF-8, stands as it is.
MusicSign settingOf(std::string_view character);

}  // namespace desktop
