#pragma once

#include <string>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// A file's contents, or what kept it from being made.
struct RenderedPicture {
  std::string bytes;    ///< empty when it went wrong
  std::string problem;  ///< one line, for example "the scale is 0"; "" when it went well
};

// Both may be called from any thread. Texts are set in the typefaces of the program; only a
// character that they lack is looked for among the machine's fonts.

/// The scene as a PNG with `scale` pixels a point, 0 to 100. A broken pixel at the right or lower
/// edge counts as a whole one. More than 64 million pixels are refused.
RenderedPicture renderPng(const todaychord::Scene& scene, double scale);

/// The scene as a PDF of one page, a point of the scene being one of the page: with texts that
/// can be selected, with links, and with the scene's title and description as the document's, but
/// without a date: the same scene is the same file.
RenderedPicture renderPdf(const todaychord::Scene& scene);

}  // namespace desktop
