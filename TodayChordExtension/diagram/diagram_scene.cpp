#include "TodayChordExtension/diagram/diagram_scene.h"

#include "TodayChordExtension/diagram/diagram_board.h"
#include "TodayChordExtension/diagram/diagram_labels.h"
#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/diagram_markers.h"
#include "TodayChordExtension/diagram/fingering_instructions.h"
#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/diagram/scene_placement.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/diagram/text_width.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

// Chords that cannot be shown have no title.
std::string titleOf(const Chord& chord) {
  return tonelake::Chords::isShowable(chord) ? tonelake::Chords::getTitleForChord(chord) : "";
}

double diagramHeight(const ChordView& view) {
  return view.displayNotes ? metrics::designHeightWithNotes : metrics::designHeight;
}

// In design units, from the board up to what lies on it.
SceneItems drawParts(const ChordView& view, const DiagramLayout& layout) {
  SceneItems items;
  append(items, drawBoard(view));
  append(items, drawStrings(view, layout));
  append(items, drawNut(view, layout));
  append(items, drawBeds(view, layout));
  append(items, drawBarres(view, layout));
  append(items, drawDots(view, layout));
  append(items, drawMarks(view, layout));
  append(items, drawBaseFret(view, layout));
  append(items, drawNoteLabels(view, layout));
  return items;
}

// A line in the middle of the card, set smaller where it would be too long.
TextItem cardText(const std::string& text, const Font& font, double baseline, const Color& color) {
  const double size = fittingFontSize(text, font.size, metrics::cardTextWidth);
  return {text, {font.name, size}, TextAnchor::middle, {metrics::cardWidth / 2, baseline}, color};
}

}  // namespace

Scene drawDiagram(const ChordView& view, double width) {
  const DiagramLayout layout = layOutDiagram(view, width);
  return {metrics::designWidth * layout.scale, diagramHeight(view) * layout.scale,
          titleOf(view.chord), describeFingering(view.position, view.fingering),
          placed(drawParts(view, layout), {{0, 0}, layout.scale})};
}

Scene drawDiagramCard(const ChordView& view, const std::string& title, double width,
                      const Paint& background) {
  const double height = metrics::cardDiagramY + diagramHeight(view) + metrics::cardBottom;
  const std::string tones = tonelake::join(tonelake::Chords::getNotesOfChord(view.chord), " · ");
  SceneItems items{{PathItem{
      roundedRectangle({0, 0, metrics::cardWidth, height}, CornerRadii::all(metrics::cardRadius)),
      background}}};
  const auto addText = [&](const std::string& text, double size, double y, const Color& color) {
    if (!text.empty()) items.push_back({cardText(text, {view.font.name, size}, y, color)});
  };
  addText(title, metrics::cardTitleFontSize, metrics::cardTitleBaseline, palette::cardTitle);
  addText(tones, metrics::cardTonesFontSize, metrics::cardTonesBaseline, palette::accent);
  const Scene diagram = drawDiagram(view, metrics::designWidth);
  append(items, placed(diagram.items, {{metrics::cardDiagramX, metrics::cardDiagramY}}));
  const double scale = width / metrics::cardWidth;
  return {width, height * scale, title, diagram.description, placed(items, {{0, 0}, scale})};
}

}  // namespace todaychord
