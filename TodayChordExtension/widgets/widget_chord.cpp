#include "TodayChordExtension/widgets/widget_chord.h"

#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/diagram/scene_placement.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_text.h"
#include "Tonelake/chords/chord_naming.h"
#include "Tonelake/chords/chord_spelling.h"
#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

bool isShown(const std::optional<Chord>& chord) {
  return chord && tonelake::Chords::isShowable(*chord);
}

}  // namespace

std::string widgetTitle(const std::optional<Chord>& chord, WholeNumber maxChars) {
  return isShown(chord) ? tonelake::Chords::getTitleForChord(*chord, maxChars) : "";
}

std::string inlineTitle(const std::optional<Chord>& chord) {
  constexpr tonelake::WholeNumber maxChars = 2;  // almost every type by its short name
  return widgetTitle(chord, maxChars);
}

std::string widgetTones(const std::optional<Chord>& chord) {
  if (!isShown(chord)) return "";
  return tonelake::join(tonelake::Chords::getNotesOfChord(*chord), " · ");
}

std::string chordOfTheDayTitle(const std::optional<Chord>& chord, tonelake::WholeNumber maxChars) {
  const std::string title = widgetTitle(chord, maxChars);
  return title.empty() ? localized("No chord") : title;
}

std::string chordOfTheDayTones(const std::optional<Chord>& chord) {
  const std::string tones = widgetTones(chord);
  return tones.empty() ? localized("Find one in Zyndle") : tones;
}

std::string chordOfTheDayLabel(const std::optional<Chord>& chord) {
  const std::string title = widgetTitle(chord, spokenTitleLength);
  return localized("Chord of the Day") + (title.empty() ? "" : ", " + title) + ". " +
         localized("Learn More");
}

std::optional<ChordView> widgetDiagram(const std::optional<Chord>& chord,
                                       const ViewSettings& settings) {
  if (!isShown(chord)) return std::nullopt;
  const auto shapes = tonelake::Chords::getChordPositions(*chord, 1, tonelake::Tuning::standard);
  if (shapes.empty()) return std::nullopt;
  const auto& [position, fingering] = std::tie(shapes[0].position, shapes[0].fingering);
  ChordView view;
  view.chord = *chord;
  view.position = WholeNumbers(position.begin(), position.end());
  view.fingering = WholeNumbers(fingering.begin(), fingering.end());
  view.isLeftHanded = settings.isLeftHanded;
  return view;
}

SceneItem drawDiagramAt(const ChordView& view, double middleX, double top, double scale) {
  const Point origin{middleX - metrics::boardMiddleX * scale,
                     top - widgetMetrics::diagramTop * scale};
  const Scene diagram = drawDiagram(view, metrics::designWidth * scale);
  return {SceneGroup{"diagram", placed(diagram.items, {origin})}};
}

}  // namespace todaychord
