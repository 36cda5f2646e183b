#pragma once

#include <array>

#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "TodayChordExtension/diagram/geometry.h"
#include "TodayChordExtension/widgets/widget_family.h"

// Measures of the widgets in points; x grows to the right, y downwards from the widget's upper left
// corner. "Baseline" is where letters stand. Scales are those of the diagram, 135 points wide at 1.

namespace todaychord::widgetMetrics {

struct Size {
  double width = 0;
  double height = 0;
};

// In case order of the families.
inline constexpr std::array<Size, 8> sizes{{
    {170, 170},  // small
    {364, 170},  // medium
    {364, 382},  // large
    {715, 382},  // extra large
    {382, 715},  // extra large, portrait
    {76, 76},    // accessory, circular
    {172, 76},   // accessory, rectangular
    {234, 26},   // accessory, inline
}};
constexpr Size sizeOf(WidgetFamily family) {
  return sizes.at(family);
}

inline constexpr double cornerRadius = 22;  // of a widget
inline constexpr double rimWidth = 1;

// Text styles.
inline constexpr double footnote = 13;
inline constexpr double caption = 12;
inline constexpr double smallestTextScale = 0.75;  // a longer text is cut instead of set smaller

// What a diagram paints, in its own units: from the marks above the nut to the board's lower edge.
inline constexpr double diagramTop =
    metrics::markY - metrics::openMarkRadius - metrics::markStroke / 2;  // 13.4
inline constexpr double diagramBottom = metrics::boardLayerY + metrics::boardY +
                                        metrics::boardHeight + metrics::boardStroke / 2;  // 124.9
inline constexpr double diagramInk = diagramBottom - diagramTop;                          // 111.5

// Chord of the day, small: the title above the diagram.
namespace smallChord {
inline constexpr double diagramScale = 1.15;
inline constexpr double titleFont = 17;
inline constexpr double titleBaseline = 26;
inline constexpr double titleWidth = 138;
inline constexpr double diagramY = 35;
inline constexpr double icon = 64;  // where there is no chord, above a line of text
inline constexpr double loneTextBaseline = 136;
}  // namespace smallChord

// Medium: the texts in a column on the left, the diagram on the right.
namespace mediumChord {
inline constexpr double diagramScale = 1.2;
inline constexpr double diagramMiddleX = 270;
inline constexpr double diagramY = (170 - diagramInk * diagramScale) / 2;
inline constexpr double columnX = 22;
inline constexpr double columnWidth = 186;
inline constexpr double labelBaseline = 38;
inline constexpr double titleFont = 20;
inline constexpr double titleBaseline = 77;
inline constexpr double tonesBaseline = 98;
inline constexpr double buttonY = 120;
inline constexpr double icon = 84;
}  // namespace mediumChord

// Large: everything on the middle line.
namespace largeChord {
inline constexpr double diagramScale = 1.75;
inline constexpr double textWidth = 316;
inline constexpr double labelBaseline = 38;
inline constexpr double titleFont = 30;
inline constexpr double titleBaseline = 76;
inline constexpr double tonesFont = 15;
inline constexpr double tonesBaseline = 99;
inline constexpr double diagramY = 115;
inline constexpr double buttonY = 330;
inline constexpr double icon = 120;
}  // namespace largeChord

// Extra large: the diagram on the left, a column with all that is known on the right.
namespace extraLargeChord {
inline constexpr double diagramScale = 2.6;
inline constexpr double diagramMiddleX = 196;
inline constexpr double diagramY = (382 - diagramInk * diagramScale) / 2;
inline constexpr double columnX = 396;
inline constexpr double columnWidth = 290;
inline constexpr double labelBaseline = 76;
inline constexpr double titleFont = 40;
inline constexpr double titleBaseline = 128;
inline constexpr double factFont = 17;
inline constexpr double firstFactBaseline = 174;
inline constexpr double factPitch = 32;
inline constexpr double factX = 84;  // from the name of a fact to the fact
inline constexpr double buttonBelowFacts = 10;
inline constexpr double icon = 150;
}  // namespace extraLargeChord

// The accessories: a title alone.
namespace accessory {
inline constexpr double circleFont = 12;
inline constexpr double circleTextWidth = 60;  // a chord of the ring near its middle
inline constexpr double ringInset = 4;
inline constexpr double ringStroke = 1;
inline constexpr double rectangleRadius = 16;
inline constexpr double rectangleTextWidth = 148;
inline constexpr double inlineFont = 15;
inline constexpr double inlineTextWidth = 222;
inline constexpr double circleIcon = 34;
inline constexpr double rectangleIcon = 34;
inline constexpr double inlineIcon = 18;
}  // namespace accessory

// A button with a short text.
namespace button {
inline constexpr double width = 104;
inline constexpr double height = 30;
}  // namespace button

// The tall widgets: sections from the top down, grids of two columns.
namespace tall {
inline constexpr double margin = 20;
inline constexpr double width = 382 - 2 * margin;  // 342
inline constexpr double height = 715;
inline constexpr double bottom = height - margin;
inline constexpr double cardRadius = 18;
inline constexpr int columns = 2;
inline constexpr double gap = 12;
inline constexpr double columnWidth = (width - gap * (columns - 1)) / columns;  // 165
inline constexpr double cardPadding = 14;
}  // namespace tall

// The title of a section, with a line below it.
namespace sectionTitle {
inline constexpr double titleFont = 21;
inline constexpr double titleBaseline = 18;
inline constexpr double subtitleFont = footnote;
inline constexpr double subtitleBaseline = 37;
inline constexpr double height = 42;
inline constexpr double gapBelow = 12;
inline constexpr double contentsY = height + gapBelow;  // of what the section holds
}  // namespace sectionTitle

namespace launcher {
inline constexpr double chordCardHeight = 224;
inline constexpr double sectionGap = 24;
inline constexpr double diagramScale = 1.5;
inline constexpr double diagramMiddleX = 236;  // in the card
inline constexpr double columnWidth = 134;
inline constexpr double columnX = 20;
inline constexpr double categoryBaseline = 42;
inline constexpr double titleFont = 24;
inline constexpr double titleBaseline = 112;
inline constexpr double tonesBaseline = 135;
inline constexpr double buttonY = 174;
inline constexpr double icon = 96;
inline constexpr double toolIcon = 38;
inline constexpr double toolField = 64;  // the square behind a tool's icon
inline constexpr double toolFieldRadius = 16;
inline constexpr double toolFont = 15;
inline constexpr double toolTitleFromBottom = 22;
}  // namespace launcher

namespace recent {
inline constexpr double searchButton = 42;
inline constexpr double searchIcon = 20;
inline constexpr int rows = 4;
inline constexpr double cellTitleFont = 15;
inline constexpr double cellTitleBaseline = 23;
inline constexpr double diagramY = 31;
inline constexpr double diagramScale = 0.92;
inline constexpr double icon = 48;
}  // namespace recent

namespace collections {
inline constexpr int rows = 4;
inline constexpr double allRowHeight = 48;
inline constexpr double allFont = 15;
inline constexpr double chevron = 18;
inline constexpr double captionHeight = 50;  // the dark foot of a card
inline constexpr double artwork = 46;
inline constexpr double textPadding = 12;
inline constexpr double titleFont = 13;
inline constexpr double titleFromBottom = 28;
inline constexpr double subtitleFont = 11.5;
inline constexpr double subtitleFromBottom = 12;
inline constexpr double loneTitleFromBottom = 20;  // of a collection without a title
inline constexpr double emptyIcon = 96;            // where there is no collection
inline constexpr double emptyTextBelow = 40;       // from the icon to the text's baseline
}  // namespace collections

}  // namespace todaychord::widgetMetrics
