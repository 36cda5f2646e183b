#include "Desktop/typefaces.h"

#include <algorithm>
#include <iterator>

namespace desktop {
namespace {

// clang-format off
constexpr Typeface typefaces[] = {
    // name                   file                          web families                                 weight
    {"Space Grotesk Medium",  "SpaceGrotesk-Medium.ttf",   "'Space Grotesk', 'Noto Music', sans-serif", 500},
    {"SpaceGrotesk-SemiBold", "SpaceGrotesk-SemiBold.ttf", "'Space Grotesk', 'Noto Music', sans-serif", 600},
};
// clang-format on

}  // namespace

const Typeface& typefaceCalled(std::string_view name) {
  const auto* found = std::find_if(std::begin(typefaces), std::end(typefaces),
                                   [&](const Typeface& typeface) { return name == typeface.name; });
  return found == std::end(typefaces) ? typefaces[0] : *found;
}

double growthOf(std::string_view character) {
  constexpr double growthOfFlats = 1.4;
  return character == "♭" || character == "𝄫" ? growthOfFlats : 1;
}

bool isMusicSign(std::string_view character) {
  constexpr std::string_view signs[] = {"♭", "♮", "♯", "𝄪", "𝄫"};
  return std::find(std::begin(signs), std::end(signs), character) != std::end(signs);
}

}  // namespace desktop
