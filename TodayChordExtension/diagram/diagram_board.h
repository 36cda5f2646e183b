#pragma once

#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// The parts of the diagram under the markers, in design units.

/// The fretboard with its fret lines.
SceneItems drawBoard(const ChordView& view);

/// The six strings, from the left, each a group named after its number: "string-6" is the lowest.
SceneItems drawStrings(const ChordView& view, const DiagramLayout& layout);

/// The band at the top, over the ends of the strings; nothing unless row 1 is fret 1.
SceneItems drawNut(const ChordView& view, const DiagramLayout& layout);

}  // namespace todaychord
