#include "Desktop/font_face.h"

#include <string>

#include FT_TRUETYPE_TABLES_H
#include FT_TRUETYPE_TAGS_H

namespace desktop {
namespace {

std::string readTable(FT_Face face, FT_ULong tag) {
  FT_ULong length = 0;
  if (FT_Load_Sfnt_Table(face, tag, 0, nullptr, &length) != 0) return "";
  std::string table(length, '\0');
  auto* bytes = reinterpret_cast<FT_Byte*>(table.data());
  return FT_Load_Sfnt_Table(face, tag, 0, bytes, &length) == 0 ? table : "";
}

cairo_scaled_font_t* makeMeasure(cairo_font_face_t* face, double size) {
  cairo_matrix_t scale;
  cairo_matrix_t identity;
  cairo_matrix_init_scale(&scale, size, size);
  cairo_matrix_init_identity(&identity);
  return cairo_scaled_font_create(face, &scale, &identity, unhintedLetters().get());
}

}  // namespace

FontFace::FontFace(FT_Face face)
    : unitsPerSize_(face->units_per_EM),
      kerning_(readTable(face, TTAG_GPOS)),
      cairoFace_(cairo_ft_font_face_create_for_ft_face(face, FT_LOAD_NO_HINTING)),
      measure_(makeMeasure(cairoFace_, unitsPerSize_)) {}

unsigned FontFace::glyphOf(std::string_view character) const {
  cairo_glyph_t buffer{};
  cairo_glyph_t* glyph = &buffer;
  int count = 1;
  cairo_scaled_font_text_to_glyphs(measure_, 0, 0, character.data(),
                                   static_cast<int>(character.size()), &glyph, &count, nullptr,
                                   nullptr, nullptr);
  const unsigned found = count == 1 ? static_cast<unsigned>(glyph->index) : 0;
  if (glyph != &buffer) cairo_glyph_free(glyph);
  return found;
}

double FontFace::advanceOf(unsigned glyph) const {
  const cairo_glyph_t measured{glyph, 0, 0};
  cairo_text_extents_t extents{};
  cairo_scaled_font_glyph_extents(measure_, &measured, 1, &extents);
  return extents.x_advance / unitsPerSize_;
}

double FontFace::kerningBetween(unsigned first, unsigned second) const {
  return kerning_.between(first, second) / unitsPerSize_;
}

CPointer<cairo_font_options_t, cairo_font_options_destroy> unhintedLetters() {
  CPointer<cairo_font_options_t, cairo_font_options_destroy> options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  return options;
}

}  // namespace desktop
