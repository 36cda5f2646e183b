#pragma once

#include <cairo.h>

#include "TodayChordExtension/diagram/scene.h"

namespace desktop {

/// Makes a place of a document lead to an address. Cairo knows no words for screen readers there.
void addLink(cairo_t* context, const todaychord::LinkArea& link);

}  // namespace desktop
