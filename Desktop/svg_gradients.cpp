#include "Desktop/svg_gradients.h"

#include <cstddef>
#include <utility>
#include <variant>

#include "Desktop/svg_attributes.h"

namespace desktop {
namespace {

using todaychord::LinearGradient;
using todaychord::Paint;
using todaychord::RadialGradient;

void writeStops(const todaychord::Gradient& stops, pugi::xml_node parent) {
  for (const todaychord::ColorStop& stop : stops) {
    pugi::xml_node node = parent.append_child("stop");
    setAttribute(node, "offset", stop.place);
    setAttribute(node, "stop-color", hexadecimal(stop.color));
    setOpacity(node, "stop-opacity", stop.color.opacity);
  }
}

}  // namespace

SvgGradients::SvgGradients(pugi::xml_node definitions, std::string idPrefix)
    : definitions_(definitions), idPrefix_(std::move(idPrefix)) {}

// Pictures hold a handful of gradients: a search through them costs less than an index.
std::string SvgGradients::idOf(const Paint& gradient) {
  std::size_t i = 0;
  while (i < gradients_.size() && !(gradients_[i] == gradient)) ++i;
  std::string id = idPrefix_ + "gradient-" + std::to_string(i + 1);
  if (i == gradients_.size()) {
    gradients_.push_back(gradient);
    define(gradient, id);
  }
  return id;
}

void SvgGradients::define(const Paint& gradient, const std::string& id) {
  const auto* linear = std::get_if<LinearGradient>(&gradient);
  pugi::xml_node node =
      definitions_.append_child(linear != nullptr ? "linearGradient" : "radialGradient");
  setAttribute(node, "id", id);
  setAttribute(node, "gradientUnits", "userSpaceOnUse");
  if (linear != nullptr) {
    setAttribute(node, "x1", linear->start.x);
    setAttribute(node, "y1", linear->start.y);
    setAttribute(node, "x2", linear->end.x);
    setAttribute(node, "y2", linear->end.y);
    writeStops(linear->stops, node);
  } else if (const auto* radial = std::get_if<RadialGradient>(&gradient)) {
    setAttribute(node, "cx", radial->centre.x);
    setAttribute(node, "cy", radial->centre.y);
    setAttribute(node, "r", radial->radius);
    writeStops(radial->stops, node);
  }
}

}  // namespace desktop
