#pragma once

#include <cairo.h>

#include "Desktop/c_pointer.h"
#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// A number of a scene as Cairo can take it: what is not finite becomes 0, and what lies far
/// outside of any picture is moved to where Cairo can still count. In points.
double drawable(double number);

/// Makes `path` the current path.
void tracePath(cairo_t* context, const todaychord::Path& path);

/// What Cairo paints with for `paint`, all of it at this opacity.
CPointer<cairo_pattern_t, cairo_pattern_destroy> makePattern(const todaychord::Paint& paint,
                                                             double opacity);

}  // namespace desktop
