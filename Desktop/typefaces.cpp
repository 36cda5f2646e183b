#include "Desktop/typefaces.h"

#include <algorithm>
#include <iterator>

#include "TodayChordExtension/diagram/font.h"

namespace desktop {
namespace {

// clang-format off
constexpr Typeface typefaces[] = {
    // name                    file                          web families                                 weight
    {todaychord::regularFont,  "SpaceGrotesk-Medium.ttf",   "'Space Grotesk', 'Noto Music', sans-serif", 500},
    {todaychord::boldFont,     "SpaceGrotesk-SemiBold.ttf", "'Space Grotesk', 'Noto Music', sans-serif", 600},
};

constexpr MusicSign musicSigns[] = {
    // sign rise  growth
    {"♭",   0.02, 1.35},
    {"♮",   0.12, 1},
    {"♯",   0.12, 1},
    {"𝄪",   0.12, 1},
    {"𝄫",   0.02, 1.35},
};
// clang-format on

}  // namespace

const Typeface& typefaceCalled(std::string_view name) {
  const auto* found = std::find_if(std::begin(typefaces), std::end(typefaces),
                                   [&](const Typeface& typeface) { return name == typeface.name; });
  return found == std::end(typefaces) ? typefaces[0] : *found;
}

MusicSign settingOf(std::string_view character) {
  const auto* found =
      std::find_if(std::begin(musicSigns), std::end(musicSigns),
                   [&](const MusicSign& sign) { return sign.character == character; });
  return found == std::end(musicSigns) ? MusicSign{character} : *found;
}

}  // namespace desktop
