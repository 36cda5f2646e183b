#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/theory/tuning.h"
#include "zyndle/output_options.h"

namespace zyndle {

/// How diagrams and titles look.
struct DrawingStyle {
  bool isLeftHanded = false;
  bool isAscii = false;
  bool isColoured = false;
};

/// What the options ask for, what the setting says where they leave it open, and colour only
/// where the terminal shows it.
DrawingStyle drawingStyle(const OutputOptions& options);

/// The style of a text without diagrams, which the setting does not matter to.
DrawingStyle textStyle(const OutputOptions& options);

/// `text` in bold where there is colour.
std::string emphasized(const std::string& text, const DrawingStyle& style);

/// The shapes as terminal diagrams, as many side by side as 80 columns hold.
std::string drawInTerminal(const tonelake::Chord& chord,
                           const std::vector<tonelake::ChordPosition>& positions,
                           const tonelake::TuningNames& tuning, const DrawingStyle& style);

/// A shape with the chord it is a shape of.
struct NamedShape {
  tonelake::Chord chord;
  tonelake::ChordPosition position;
};

/// The shapes of a row of chords in the same way, each below the name of its chord.
std::string drawNamedInTerminal(const std::vector<NamedShape>& shapes,
                                const tonelake::TuningNames& tuning, const DrawingStyle& style);

/// Writes the diagram of the first shape where --svg wants it, if it was given. A CommandError
/// when there is no shape to draw or the file cannot be written.
void writeSvg(const OutputOptions& options, const tonelake::Chord& chord,
              const std::vector<tonelake::ChordPosition>& positions,
              const tonelake::TuningNames& tuning, const DrawingStyle& style);

/// The same with a card for each of the shapes, four a row, in one picture called `title`.
void writeSvgOfRow(const OutputOptions& options, const std::string& title,
                   const std::vector<NamedShape>& shapes, const tonelake::TuningNames& tuning,
                   const DrawingStyle& style);

}  // namespace zyndle
