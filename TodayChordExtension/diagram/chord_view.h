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

/// How strongly lines stand out, as the user's system asks for.
enum class ColorSchemeContrast { standard, increased };

/// One fingering of a chord, drawn as an upright fretboard, with everything that decides how it
/// looks. Plain data: layOutDiagram tells where things lie.
struct ChordView {
  Chord chord;                   ///< spells the note labels
  WholeNumbers position;         ///< fret per string, lowest first: -1 muted, 0 open, n pressed
  WholeNumbers fingering;        ///< finger per string, or none: -1 and 0 no finger, 1 to 4
  bool displayFingering = true;  ///< finger numbers on the dots
  bool displayNotes = false;     ///< names of the notes below the strings
  bool liquidGlass = false;      ///< dots and barres as translucent glass
  /// What the strings sound, for the note labels: a string with an unknown name has none.
  tonelake::TuningNames tuning = tonelake::Tuning::standard;
  std::vector<int> highlightStrings;  ///< numbers 1 (highest) to 6 (lowest)
  /// Increased: lines of frets are opaque.
  ColorSchemeContrast colorSchemeContrast = ColorSchemeContrast::standard;
  bool reduceTransparency = false;  ///< plain dots where liquidGlass asks for glass
  bool isLeftHanded = false;        ///< mirrored left to right
  /// How far each string is drawn sideways, lowest first; design units.
  std::vector<double> displacement = std::vector<double>(metrics::stringCount, 0.0);
  double touchY = metrics::middleOfString;  ///< where a string was plucked: 0 top, 1 bottom
  Color stringColor{0xDEDEDE};              ///< of rim, nut, lines of frets, marks and labels
  Color stringHighlightColor{0xDEDEDE};     ///< for hosts; the scene has gradients instead
  Color fillColor{0x3B0A63};                ///< of the board
  /// Of a highlighted string on the board's edge, from its top to its bottom.
  Gradient stringHighlightGradient{{0, {0xFFFFFF}}, {1, {0xCC66DA}}};
  /// Of a highlighted string between the two.
  Gradient stringHighlightGradientPlain{{0, {0xFFFFFF}}, {1, {0xE0A8E8}}};
  /// Of every other string.
  Gradient stringColorGradient{{0, {0xDEDEDE}}, {0.5, {0xF4EFF8}}, {1, {0xDEDEDE}}};
  Font font{regularFont, metrics::noteLabelFontSize};  ///< of note labels
  Font topFont{regularFont, metrics::topFontSize};     ///< of the base fret
  double displacementValue = 0;                        ///< for hosts; the scene takes displacement
  double dotDiameter = metrics::standardDotDiameter;   ///< design units
};

}  // namespace todaychord
