#include "zyndle/drawing.h"

#include <algorithm>

#include "Desktop/svg_renderer.h"
#include "Desktop/terminal_diagram.h"
#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/diagram/scene_placement.h"
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
  view.displayNotes = true;
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

DrawingStyle textStyle(const OutputOptions& options) {
  return {false, options.ascii, mayColour()};
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

void writeSvgOfRow(const OutputOptions& options, const std::string& title,
                   const std::vector<NamedShape>& shapes, const tonelake::TuningNames& tuning,
                   const DrawingStyle& style) {
  if (!options.svgFile) return;
  constexpr std::size_t cardsInRow = 4;
  constexpr double gap = 16;  // points between cards
  todaychord::Scene picture;
  picture.title = title;
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    const NamedShape& shape = shapes[i];
    const std::string name = tonelake::Chords::getTitleForChord(shape.chord);
    const todaychord::Scene card = todaychord::drawDiagramCard(
        viewOf(shape.chord, shape.position, tuning, style), name, cardWidth);
    const std::size_t row = i / cardsInRow;
    const std::size_t column = i % cardsInRow;
    const todaychord::Point corner{static_cast<double>(column) * (card.width + gap),
                                   static_cast<double>(row) * (card.height + gap)};
    picture.items.push_back({todaychord::SceneGroup{"card-" + std::to_string(i + 1),
                                                    todaychord::placed(card.items, {corner})}});
    picture.width = std::max(picture.width, corner.x + card.width);
    picture.height = corner.y + card.height;
    picture.description += (i == 0 ? "" : " ") + name + ": " + card.description;
  }
  writeFile(*options.svgFile, desktop::renderSvg(picture));
}

}  // namespace zyndle
