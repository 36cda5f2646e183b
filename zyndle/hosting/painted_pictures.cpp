#include "zyndle/hosting/painted_pictures.h"

#include <utility>

#include "Desktop/cairo_renderer.h"
#include "zyndle/command_error.h"

namespace zyndle {
namespace {

std::string bytesOf(desktop::RenderedPicture picture) {
  if (!picture.problem.empty()) fail(picture.problem);
  return std::move(picture.bytes);
}

}  // namespace

std::string paintPng(const todaychord::Scene& scene, double scale) {
  return bytesOf(desktop::renderPng(scene, scale));
}

std::string paintPdf(const todaychord::Scene& scene, double /*scale*/) {
  return bytesOf(desktop::renderPdf(scene));
}

}  // namespace zyndle
