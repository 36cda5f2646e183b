#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "TodayChordExtension/diagram/color.h"
#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

// The pieces of text that SVG attributes hold.

/// "M1 2L3 4C5 6 7 8 9 10Z".
std::string formatPath(const todaychord::Path& path);

/// A piece of a line, how far its baseline lies below that of the piece before it, and how much
/// larger than the line it is set.
struct TextSpan {
  std::string text;
  double shift = 0;
  double growth = 1;

  friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/// `text` in pieces that raise its music signs at `fontSize`: our text face lacks the signs, and
/// those of music faces hang low beside its letters. "F♯m" at 10 gives {"F", 0, 1}, {"♯", -1.2, 1},
/// {"m", 1.2, 1}.
std::vector<TextSpan> raiseMusicSigns(std::string_view text, double fontSize);

/// `text` with U+FFFD for every byte that is no UTF-8 and every character that XML 1.0 forbids.
std::string cleanForXml(std::string_view text);

}  // namespace desktop
