#pragma once

#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/scene.h"

namespace todaychord {

// What stands around the board, in design units.

/// A ring above each open string and a cross above each muted one.
SceneItems drawMarks(const ChordView& view, const DiagramLayout& layout);

/// "5fr" beside row 1, on the side of the lowest string; nothing when row 1 is fret 1.
SceneItems drawBaseFret(const ChordView& view, const DiagramLayout& layout);

/// The note names below the strings.
SceneItems drawNoteLabels(const ChordView& view, const DiagramLayout& layout);

}  // namespace todaychord
