#pragma once

#include <string_view>

#include <cairo-ft.h>

#include "Desktop/c_pointer.h"
#include "Desktop/pair_kerning.h"

namespace desktop {

/// A font as Cairo draws it. Nothing in it changes, and Cairo guards what it reads from the font:
/// any thread may use it.
class FontFace {
 public:
  /// Takes `face` over: nothing else may touch it from now on. Neither it nor the FontFace is ever
  /// given back, because Cairo keeps letters that it drew, and their font, for later.
  explicit FontFace(FT_Face face);

  FontFace(const FontFace&) = delete;
  FontFace& operator=(const FontFace&) = delete;

  cairo_font_face_t* cairoFace() const { return cairoFace_; }

  /// The font's number for `character`, one of well-formed UTF-8; 0 when it has none for it.
  /// Glyph 0 itself is drawn as a box.
  unsigned glyphOf(std::string_view character) const;

  /// From this glyph to the next, in font sizes.
  double advanceOf(unsigned glyph) const;

  /// What is added to the advance of `first` before `second`, in font sizes.
  double kerningBetween(unsigned first, unsigned second) const;

 private:
  double unitsPerSize_;
  PairKerning kerning_;
  cairo_font_face_t* cairoFace_;
  cairo_scaled_font_t* measure_;  // the font in the size at which one unit is one point
};

/// How letters are drawn: unhinted, so that they look the same and take as much room at all scales.
CPointer<cairo_font_options_t, cairo_font_options_destroy> unhintedLetters();

}  // namespace desktop
