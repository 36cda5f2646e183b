#pragma once

#include <vector>

#include "TodayChordExtension/diagram/color.h"
#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "TodayChordExtension/diagram/font.h"
#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/tuning.h"

namespace todaychord {

using tonelake::Chord;
using tonelake::WholeNumber;
using tonelake::WholeNumbers;

enum class ColorSchemeContrast { standard, increased };

/// One fingering of a chord, drawn as an upright fretboard, with everything that decides how it
/// looks. Plain data: layOutDiagram tells where things lie.
struct ChordView {
  Chord chord;             ///< spells the note labels
  WholeNumbers position;   ///< fret per string, lowest first: -1 muted, 0 open, n pressed
  WholeNumbers fingering;  ///< finger per string, or none: -1 and 0 no finger, 1 to 4
  bool displayFingering = true;
  bool displayNotes = false;
  bool liquidGlass = false;  ///< dots and barres as translucent glass
  /// What the strings sound, for the note labels: a string with an unknown name has none.
  tonelake::TuningNames tuning = tonelake::Tuning::standard;
  std::vector<int> highlightStrings;  ///< numbers 1 (highest) to 6 (lowest)
  ColorSchemeContrast colorSchemeContrast = ColorSchemeContrast::standard;
  bool reduceTransparency = false;
  bool isLeftHanded = false;  ///< mirrored left to right
  std::vector<double> displacement = std::vector<double>(metrics::stringCount, 0.0);
  double touchY = metrics::middleOfString;  ///< where a string was plucked: 0 top, 1 bottom
  Color stringColor{0xDEDEDE};
  Color stringHighlightColor{0xDEDEDE};
  Color fillColor{0x3B0A63};
  Gradient stringHighlightGradient{{0, {0xFFFFFF}}, {1, {0xCC66DA}}};
  Gradient stringHighlightGradientPlain{{0, {0xFFFFFF}}, {1, {0xE0A8E8}}};
  Gradient stringColorGradient{{0, {0xDEDEDE}}, {0.5, {0xF4EFF8}}, {1, {0xDEDEDE}}};
  Font font{"Space Grotesk Medium", metrics::noteLabelFontSize};
  Font topFont{"Space Grotesk Medium", metrics::topFontSize};
  double displacementValue = 0;
  double dotDiameter = metrics::standardDotDiameter;
};

}  // namespace todaychord
