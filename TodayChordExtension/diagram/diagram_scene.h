#pragma once

#include <string>

#include "TodayChordExtension/diagram/chord_view.h"
#include "TodayChordExtension/diagram/diagram_palette.h"
#include "TodayChordExtension/diagram/scene.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// The diagram of a fingering, 135 design units wide (at least 67.5 points, whatever the width),
/// without a background. It is titled after its chord and described by the instructions for the
/// hand. Lists that do not hold six values draw what they have.
TONELAKE_API Scene drawDiagram(const ChordView& view, double width);

/// A card to hang up: `title` above the diagram on a background with round corners, `width`
/// points wide. A title that is too long is set smaller.
TONELAKE_API Scene drawDiagramCard(const ChordView& view, const std::string& title, double width,
                                   const Paint& background = palette::card);

}  // namespace todaychord
