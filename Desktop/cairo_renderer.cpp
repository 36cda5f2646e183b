#include "Desktop/cairo_renderer.h"

#include <cmath>
#include <utility>

#include <cairo-pdf.h>
#include <cairo.h>

#include "Desktop/c_pointer.h"
#include "Desktop/cairo_painter.h"
#include "Desktop/glyph_layout.h"
#include "Desktop/number_text.h"
#include "Desktop/png_writer.h"
#include "Desktop/translation.h"

namespace desktop {
namespace {

using todaychord::Scene;
using Context = CPointer<cairo_t, cairo_destroy>;
using Surface = CPointer<cairo_surface_t, cairo_surface_destroy>;

constexpr double largestScale = 100;
constexpr double mostPixels = 64e6;
constexpr double longestImageSide = 32767;  // in pixels, as far as Cairo counts
constexpr double longestPageSide = 14400;   // in points, as far as readers of PDF must count

RenderedPicture failure(std::string problem) {
  return {"", std::move(problem)};
}

std::string formatSize(double width, double height) {
  return formatNumber(width) + " x " + formatNumber(height);
}

// "" when the scene has a size.
std::string findSizeProblem(const Scene& scene) {
  const bool isSize = std::isfinite(scene.width) && std::isfinite(scene.height) &&
                      scene.width > 0 && scene.height > 0;
  if (isSize) return "";
  return translated("a picture of {} points is none", formatSize(scene.width, scene.height));
}

std::string findScaleProblem(double scale) {
  if (!std::isfinite(scale)) return translated("the scale is not a number");
  if (scale > 0 && scale <= largestScale) return "";
  return translated("the scale is {0}, not above 0 and at most {1}", formatNumber(scale),
                    formatNumber(largestScale));
}

// 150 points at scale 1.1 are 165 pixels, and not 166 because of the last digit of a product.
double countPixels(double length, double scale) {
  constexpr double negligible = 1e-6;
  return std::fmax(1, std::ceil(length * scale - negligible));
}

std::string findPixelProblem(double width, double height) {
  if (width <= longestImageSide && height <= longestImageSide && width * height <= mostPixels) {
    return "";
  }
  return translated("a picture of {0} pixels is too large: at most {1} a side and {2} in all",
                    formatSize(width, height), formatNumber(longestImageSide),
                    formatNumber(mostPixels));
}

cairo_status_t append(void* bytes, const unsigned char* data, unsigned int length) {
  static_cast<std::string*>(bytes)->append(reinterpret_cast<const char*>(data), length);
  return CAIRO_STATUS_SUCCESS;
}

void describe(cairo_surface_t* document, const Scene& scene) {
  const auto set = [&](cairo_pdf_metadata_t kind, const std::string& text) {
    cairo_pdf_surface_set_metadata(document, kind, text.c_str());
  };
  if (!scene.title.empty()) set(CAIRO_PDF_METADATA_TITLE, cleanLine(scene.title));
  if (!scene.description.empty()) set(CAIRO_PDF_METADATA_SUBJECT, cleanLine(scene.description));
  set(CAIRO_PDF_METADATA_CREATE_DATE, "");  // or Cairo writes the time
}

RenderedPicture finish(std::string bytes, cairo_status_t status) {
  if (status == CAIRO_STATUS_SUCCESS) return {std::move(bytes), ""};
  return failure(translated("the picture cannot be drawn: {}", cairo_status_to_string(status)));
}

}  // namespace

RenderedPicture renderPng(const Scene& scene, double scale) {
  for (std::string problem : {findSizeProblem(scene), findScaleProblem(scale)}) {
    if (!problem.empty()) return failure(std::move(problem));
  }
  const double width = countPixels(scene.width, scale);
  const double height = countPixels(scene.height, scale);
  if (std::string problem = findPixelProblem(width, height); !problem.empty()) {
    return failure(std::move(problem));
  }
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, static_cast<int>(width),
                                                   static_cast<int>(height)));
  const Context context(cairo_create(surface.get()));
  cairo_scale(context.get(), scale, scale);
  paintItems(context.get(), scene.items, CairoTarget::pixels);
  cairo_status_t status = cairo_status(context.get());
  std::string bytes;
  if (status == CAIRO_STATUS_SUCCESS) bytes = writePng(surface.get());
  if (status == CAIRO_STATUS_SUCCESS && bytes.empty()) status = CAIRO_STATUS_NO_MEMORY;
  return finish(std::move(bytes), status);
}

RenderedPicture renderPdf(const Scene& scene) {
  std::string problem = findSizeProblem(scene);
  if (problem.empty() && std::fmax(scene.width, scene.height) > longestPageSide) {
    problem = translated("a page of {0} points is too large: at most {1} a side",
                         formatSize(scene.width, scene.height), formatNumber(longestPageSide));
  }
  if (!problem.empty()) return failure(std::move(problem));
  std::string bytes;
  const Surface surface(
      cairo_pdf_surface_create_for_stream(append, &bytes, scene.width, scene.height));
  describe(surface.get(), scene);
  const Context context(cairo_create(surface.get()));
  paintItems(context.get(), scene.items, CairoTarget::document);
  cairo_surface_finish(surface.get());
  cairo_status_t status = cairo_status(context.get());
  if (status == CAIRO_STATUS_SUCCESS) status = cairo_surface_status(surface.get());
  return finish(std::move(bytes), status);
}

}  // namespace desktop
