#pragma once

#include <cairo.h>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// Whether a picture ends as pixels or as a document, which holds its texts and links as such.
enum class CairoTarget { pixels, document };

/// Sets a line of text.
void paintText(cairo_t* context, const todaychord::TextItem& item, CairoTarget target);

}  // namespace desktop
