#include "Desktop/cairo_paths.h"

#include <algorithm>
#include <cmath>

namespace desktop {
namespace {

using todaychord::Color;
using todaychord::Gradient;
using Pattern = CPointer<cairo_pattern_t, cairo_pattern_destroy>;

struct StepTracer {
  cairo_t* context;

  void operator()(const todaychord::MoveTo& step) const {
    cairo_move_to(context, drawable(step.to.x), drawable(step.to.y));
  }
  void operator()(const todaychord::LineTo& step) const {
    cairo_line_to(context, drawable(step.to.x), drawable(step.to.y));
  }
  void operator()(const todaychord::CurveTo& step) const {
    cairo_curve_to(context, drawable(step.control1.x), drawable(step.control1.y),
                   drawable(step.control2.x), drawable(step.control2.y), drawable(step.to.x),
                   drawable(step.to.y));
  }
  void operator()(const todaychord::ClosePath&) const { cairo_close_path(context); }
};

struct Channels {
  double red;
  double green;
  double blue;
};

Channels channelsOf(const Color& color) {
  constexpr double full = 255;
  return {(color.rgb >> 16 & 0xFFU) / full, (color.rgb >> 8 & 0xFFU) / full,
          (color.rgb & 0xFFU) / full};
}

struct PatternMaker {
  double opacity;

  Pattern operator()(const Color& color) const {
    const auto [red, green, blue] = channelsOf(color);
    return Pattern(cairo_pattern_create_rgba(red, green, blue, color.opacity * opacity));
  }

  Pattern operator()(const todaychord::LinearGradient& gradient) const {
    if (gradient.start == gradient.end) return lastStop(gradient.stops);
    return withStops(
        Pattern(cairo_pattern_create_linear(drawable(gradient.start.x), drawable(gradient.start.y),
                                            drawable(gradient.end.x), drawable(gradient.end.y))),
        gradient.stops);
  }

  Pattern operator()(const todaychord::RadialGradient& gradient) const {
    const double radius = drawable(gradient.radius);
    if (radius <= 0) return lastStop(gradient.stops);
    const double x = drawable(gradient.centre.x);
    const double y = drawable(gradient.centre.y);
    return withStops(Pattern(cairo_pattern_create_radial(x, y, 0, x, y, radius)), gradient.stops);
  }

  // Where a gradient has no extent, browsers paint its last colour.
  Pattern lastStop(const Gradient& stops) const {
    return (*this)(stops.empty() ? Color{0, 0} : stops.back().color);
  }

  Pattern withStops(Pattern pattern, const Gradient& stops) const {
    cairo_pattern_set_extend(pattern.get(), CAIRO_EXTEND_PAD);
    double place = 0;  // no stop lies before the one that precedes it
    for (const todaychord::ColorStop& stop : stops) {
      const auto [red, green, blue] = channelsOf(stop.color);
      place = std::max(place, stop.place);
      cairo_pattern_add_color_stop_rgba(pattern.get(), place, red, green, blue,
                                        stop.color.opacity * opacity);
    }
    return pattern;
  }
};

}  // namespace

double drawable(double number) {
  constexpr double farthest = 80000;  // Cairo counts to 8 million pixels, at scale 100 here
  return std::isfinite(number) ? std::clamp(number, -farthest, farthest) : 0;
}

void tracePath(cairo_t* context, const todaychord::Path& path) {
  cairo_new_path(context);
  for (const todaychord::PathStep& step : path) std::visit(StepTracer{context}, step);
}

Pattern makePattern(const todaychord::Paint& paint, double opacity) {
  return std::visit(PatternMaker{opacity}, paint);
}

}  // namespace desktop
