#include "Desktop/cairo_text.h"

#include <cmath>
#include <vector>

#include "Desktop/cairo_paths.h"
#include "Desktop/glyph_layout.h"

namespace desktop {
namespace {

using todaychord::TextAnchor;

double distanceToAnchor(TextAnchor anchor, double width) {
  if (anchor == TextAnchor::start) return 0;
  return anchor == TextAnchor::middle ? width / 2 : width;
}

void showRun(cairo_t* context, const GlyphRun& run) {
  cairo_show_text_glyphs(context, run.text.data(), static_cast<int>(run.text.size()),
                         run.glyphs.data(), static_cast<int>(run.glyphs.size()),
                         run.clusters.data(), static_cast<int>(run.clusters.size()), {});
}

// Letters stand on the edge of a pixel, as in browsers: the feet of small ones stay sharp.
std::vector<cairo_glyph_t> onWholePixels(cairo_t* context, std::vector<cairo_glyph_t> glyphs) {
  for (cairo_glyph_t& glyph : glyphs) {
    double x = glyph.x;
    double y = glyph.y;
    cairo_user_to_device(context, &x, &y);
    y = std::round(y);
    cairo_device_to_user(context, &x, &y);
    glyph.y = y;
  }
  return glyphs;
}

// Filled from their outlines: drawn as letters, each would be moved to whole pixels sideways too,
// and the gaps between them would differ.
void fillRun(cairo_t* context, const GlyphRun& run) {
  const std::vector<cairo_glyph_t> glyphs = onWholePixels(context, run.glyphs);
  cairo_new_path(context);
  cairo_glyph_path(context, glyphs.data(), static_cast<int>(glyphs.size()));
  cairo_fill(context);
}

}  // namespace

void paintText(cairo_t* context, const todaychord::TextItem& item, CairoTarget target) {
  const double size = drawable(item.font.size);
  if (size <= 0) return;
  const GlyphLine line = layOutGlyphs(item.text, {item.font.name, size});
  const double x = drawable(item.baseline.x) - distanceToAnchor(item.anchor, line.width);
  cairo_save(context);
  cairo_translate(context, x, drawable(item.baseline.y));
  cairo_set_source(context, makePattern(item.color, 1).get());
  cairo_set_font_options(context, unhintedLetters().get());
  for (const GlyphRun& run : line.runs) {
    cairo_set_font_size(context, run.size);
    cairo_set_font_face(context, run.face->cairoFace());
    target == CairoTarget::document ? showRun(context, run) : fillRun(context, run);
  }
  cairo_restore(context);
}

}  // namespace desktop
