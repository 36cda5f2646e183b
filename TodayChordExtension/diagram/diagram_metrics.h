#pragma once

// Measures of the chord diagram in design units: the diagram is 135 units wide at scale 1, x grows
// to the right, y downwards. Nothing else in the diagram's code holds a bare number.

namespace todaychord::metrics {

inline constexpr double designWidth = 135;
inline constexpr double designHeight = 138;           // as much air below the board as above it
inline constexpr double designHeightWithNotes = 145;  // room for the note names below the board
inline constexpr double smallestScale = 0.5;

inline constexpr int stringCount = 6;
inline constexpr int fretRows = 4;
inline constexpr int highestFretAtNut = 4;  // shapes up to here are drawn from the nut

// Strings and rows, in view space.
inline constexpr double firstStringX = 33;
inline constexpr double stringPitch = 14;
inline constexpr double boardMiddleX = firstStringX + stringPitch * (stringCount - 1) / 2;  // 68
inline constexpr double rowPitch = 23;
inline constexpr double rowCentre = 19.5;  // middle of row k is rowPitch * k + rowCentre

// The marker layer, which holds dots, begins at this place of view space.
inline constexpr double markerLayerX = 6.5;
inline constexpr double markerLayerY = 6.5;
inline constexpr double firstDotX = firstStringX - markerLayerX;  // 26.5
inline constexpr double dotCentre = rowCentre - markerLayerY;     // 13
inline constexpr double standardDotDiameter = 14;
inline constexpr double companionOpacity = 0.3;
inline constexpr double companionDrop = 1.2;  // companions lie below their shapes, as shadows do
inline constexpr double dotRim = 0.8;         // of its diameter, parts a dot from its neighbour
inline constexpr double glassRimStroke = 0.75;

// Barres: anchor and size.
inline constexpr double barreX = 35;
inline constexpr double barreY = -11 + 29.2;  // y is rowPitch * fret + barreY
inline constexpr double barreHeight = 4;
inline constexpr double barreCompanionHeight = 3.4;
inline constexpr double barreCompanionRadius = 1.7;

// Open and muted strings are marked above the nut.
inline constexpr double markY = 17.5;
inline constexpr double openMarkRadius = 3.4;
inline constexpr double mutedMarkReach = 3;  // from its centre to each side
inline constexpr double markStroke = 1.4;

// The board, in a layer of its own.
inline constexpr double boardLayerX = 28;
inline constexpr double boardLayerY = 25;
inline constexpr double boardX = 5.5;
inline constexpr double boardY = 1;
inline constexpr double boardWidth = 69;
inline constexpr double boardHeight = 98;
inline constexpr double boardTopRadius = 8;
inline constexpr double boardBottomRadius = 4.5;
inline constexpr double boardStroke = 1.75;
inline constexpr double nutHeight = 10;
inline constexpr double fretLineLeft = 5;
inline constexpr double fretLineRight = 75;
inline constexpr double lowestFretLineY = 98;  // line k lies rowPitch * k above
inline constexpr double fretLineStroke = 1;
inline constexpr double fretLineOpacity = 0.5;
inline constexpr double fretGradientX = 40;
inline constexpr double fretGradientY = 50;
inline constexpr double fretGradientRadius = 200;

inline constexpr double outerStringStroke = 1.75;
inline constexpr double innerStringStroke = 1.25;
inline constexpr double stringMiterLimit = 10;
inline constexpr double middleOfString = 0.5;

inline constexpr double noteLabelX = firstStringX;
inline constexpr double noteLabelY = 135;
inline constexpr double noteLabelWidth = stringPitch;
inline constexpr double noteLabelFontSize = 10;
inline constexpr double fingerFontSize = 11.7;
inline constexpr double topFontSize = 13;
inline constexpr double capitalHeight = 0.7;  // of capitals and digits, in font sizes

// The number of the first row's fret stands beside the board, as far from it as a dot reaches.
inline constexpr double baseFretGap = 10;  // from the outer string to the text
inline constexpr double baseFretWidth =
    designWidth - firstStringX - stringPitch * (stringCount - 1) - baseFretGap;  // 22

// The card that a diagram hangs on: a title, the chord's tones, the diagram.
inline constexpr double cardWidth = 150;
inline constexpr double cardRadius = 14;
inline constexpr double cardTextWidth = 122;
inline constexpr double cardTitleFontSize = 20;
inline constexpr double cardTitleBaseline = 32;
inline constexpr double cardTonesFontSize = 9.5;
inline constexpr double cardTonesBaseline = 47.5;
inline constexpr double cardDiagramX = cardWidth / 2 - boardMiddleX;
inline constexpr double cardDiagramY = 46;
inline constexpr double cardBottom = 8;

}  // namespace todaychord::metrics
