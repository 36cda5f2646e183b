#pragma once

#include <string>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

struct SvgOptions {
  std::string idPrefix;      ///< keeps the ids of several pictures in one page apart
  bool isPluckable = false;  ///< a browser lets the strings of diagrams be plucked
};

/// The scene as an SVG document: it scales, its texts are text, and its title and description are
/// what screen readers say. Bytes that are no UTF-8 and characters that XML forbids become
/// U+FFFD.
std::string renderSvg(const todaychord::Scene& scene, const SvgOptions& options = {});

}  // namespace desktop
