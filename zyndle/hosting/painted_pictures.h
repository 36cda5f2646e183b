#pragma once

#include <string>

#include "TodayChordExtension/diagram/scene.h"

namespace zyndle {

// A scene as the bytes of a file. A CommandError when it is too large to be painted.

/// `scale` counts pixels a point.
std::string paintPng(const todaychord::Scene& scene, double scale);

/// In points, hence at any size as sharp: `scale` does nothing.
std::string paintPdf(const todaychord::Scene& scene, double scale);

}  // namespace zyndle
