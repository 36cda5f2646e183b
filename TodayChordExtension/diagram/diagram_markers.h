#pragma once

#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// What lies on the board, from below: beds, barres, dots; in design units. Markers outside the
// four rows and six strings are left out: no shape that the library offers has any.

/// A disc under each dot that parts it from strings, nut and neighbours.
SceneItems drawBeds(const ChordView& view, const DiagramLayout& layout);

/// The bars that join the dots of one finger.
SceneItems drawBarres(const ChordView& view, const DiagramLayout& layout);

/// The dots with their numbers, each a group named after its string's number: "dot-5".
SceneItems drawDots(const ChordView& view, const DiagramLayout& layout);

}  // namespace todaychord
