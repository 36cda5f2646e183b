#include "zyndle/drawing.h"

#include "Desktop/svg_renderer.h"
#include "Desktop/terminal_diagram.h"
#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/output.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

using tonelake::Chord;
using tonelake::ChordPosition;
using tonelake::WholeNumbers;

constexpr double cardWidth = 270;  // points; twice the diagram's own size

todaychord::ChordView viewOf(const Chord& chord, const ChordPosition& position,
                             const tonelake::TuningNames& tuning, const DrawingStyle& style) {
  todaychord::ChordView view;
  view.chord = chord;
  view.position = WholeNumbers(position.position.begin(), position.position.end());
  view.fingering = WholeNumbers(position.fingering.begin(), position.fingering.end());
  // The labels count from the open strings of the standard tuning.
  view.displayNotes = tuning == tonelake::Tuning::standard;
  view.tuning = tuning;
  view.isLeftHanded = style.isLeftHanded;
  return view;
}

}  // namespace

DrawingStyle drawingStyle(const OutputOptions& options) {
  // The setting is only looked at when it matters, since that opens a file.
  const todaychord::SharedSettings settings(tonelake::processPlatform().sharedSettings);
  const bool mirrored = options.leftHanded || (!options.rightHanded && settings.isLeftHanded());
  return {mirrored, options.ascii, mayColour()};
}

std::string emphasized(const std::string& text, const DrawingStyle& style) {
  return style.isColoured ? "\033[1m" + text + "\033[0m" : text;
}

std::string drawInTerminal(const Chord& chord, const std::vector<ChordPosition>& positions,
                           const tonelake::TuningNames& tuning, const DrawingStyle& style) {
  std::vector<desktop::CaptionedDiagram> diagrams;
  diagrams.reserve(positions.size());
  for (const ChordPosition& position : positions) {
    diagrams.push_back({"", viewOf(chord, position, tuning, style)});
  }
  return desktop::terminalDiagrams(diagrams, {.ascii = style.isAscii, .color = style.isColoured});
}

std::string drawNamedInTerminal(const std::vector<NamedShape>& shapes,
                                const tonelake::TuningNames& tuning, const DrawingStyle& style) {
  std::vector<desktop::CaptionedDiagram> diagrams;
  diagrams.reserve(shapes.size());
  for (const NamedShape& shape : shapes) {
    diagrams.push_back({tonelake::Chords::getShortestTitleForChord(shape.chord),
                        viewOf(shape.chord, shape.position, tuning, style)});
  }
  return desktop::terminalDiagrams(diagrams, {.ascii = style.isAscii, .color = style.isColoured});
}

void writeSvg(const OutputOptions& options, const Chord& chord,
              const std::vector<ChordPosition>& positions, const tonelake::TuningNames& tuning,
              const DrawingStyle& style) {
  if (!options.svgFile) return;
  if (positions.empty()) fail(translated("there is no shape to draw"));
  const todaychord::Scene scene =
      todaychord::drawDiagramCard(viewOf(chord, positions.front(), tuning, style),
                                  tonelake::Chords::getTitleForChord(chord), cardWidth);
  writeFile(*options.svgFile, desktop::renderSvg(scene));
}

}  // namespace zyndle
