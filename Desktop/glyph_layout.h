#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <cairo.h>

#include "Desktop/font_face.h"
#include "TodayChordExtension/diagram/font.h"

namespace desktop {

/// Neighbouring letters of one face and size, with the text that they stand for. A cluster says how
/// many bytes of the text and how many glyphs belong together.
struct GlyphRun {
  const FontFace* face = nullptr;
  double size = 0;
  std::string text;
  std::vector<cairo_glyph_t> glyphs;  ///< x and y from the start of the line on its baseline
  std::vector<cairo_text_cluster_t> clusters;
};

/// A line of text as letters, in the unit of the font's size.
struct GlyphLine {
  std::vector<GlyphRun> runs;
  double width = 0;
};

/// Sets `text`, left to right and letter by letter: each in the face of `font`, or else in the
/// shipped music face, or else in a font of the machine, or else as a box. Letters are not
/// joined as Arabic ones would have to be. Bytes that are no UTF-8 and controls are set as U+FFFD,
/// tabs and line ends as blanks.
GlyphLine layOutGlyphs(std::string_view text, const todaychord::Font& font);

/// `text` with U+FFFD for every byte that is no UTF-8 and every control, blanks for white space.
std::string cleanLine(std::string_view text);

}  // namespace desktop
