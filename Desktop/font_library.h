#pragma once

#include <string_view>

#include "Desktop/font_face.h"

namespace desktop {

// Any thread may ask. Faces are opened when they are first wanted and stay.

/// A typeface that ships with the program, by its file in Desktop/fonts.
const FontFace& shippedFace(std::string_view file);

/// A font of the machine that holds `character`, the nearest to a weight of 100 (thin) to 900
/// (heavy); nothing when none does. The first call reads the machine's list of fonts, which takes
/// more time and memory than a picture: ask for nothing that a shipped face holds.
const FontFace* systemFaceFor(std::string_view character, int weight);

}  // namespace desktop
