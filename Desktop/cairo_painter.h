#pragma once

#include <cairo.h>

#include "Desktop/cairo_text.h"
#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// Paints `items`, in points of the scene, onto a context that is already scaled. What goes wrong
/// is found in the context's status.
void paintItems(cairo_t* context, const todaychord::SceneItems& items, CairoTarget target);

}  // namespace desktop
