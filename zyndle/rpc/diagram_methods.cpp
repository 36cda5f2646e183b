#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/diagram_metrics.h"
#include "TodayChordExtension/diagram/fingering_instructions.h"
#include "TodayChordExtension/diagram/string_shape.h"
#include "zyndle/rpc/encoding.h"
#include "zyndle/rpc/method_table.h"
#include "zyndle/rpc/parameters.h"

namespace zyndle {
namespace {

json::Value encodeDot(const todaychord::FingerDot& dot) {
  return {{"stringIndex", dot.stringIndex}, {"x", dot.x}, {"y", dot.y}, {"finger", dot.finger}};
}

json::Value encodeBarre(const todaychord::BarreSegment& barre) {
  return {{"startStringIndex", barre.startStringIndex},
          {"endStringIndex", barre.endStringIndex},
          {"fret", barre.fret},
          {"x", barre.x},
          {"y", barre.y},
          {"width", barre.width}};
}

json::Value encodeNoteLabel(const todaychord::NoteLabel& label) {
  return {{"stringIndex", label.stringIndex}, {"note", label.note}, {"x", label.x}, {"y", label.y}};
}

json::Value chordView(const json::Node& parameters, MethodContext&) {
  todaychord::ChordView view;
  view.chord = chordParameter(parameters);
  view.position = sixNumbers(parameters.member("position"));
  view.fingering = sixOrNoNumbers(parameters.member("fingering"));
  view.isLeftHanded = flagOr(parameters, "isLeftHanded", view.isLeftHanded);
  view.displayNotes = flagOr(parameters, "displayNotes", view.displayNotes);
  const auto width = parameters.optionalMember("width");
  const todaychord::DiagramLayout layout =
      todaychord::layOutDiagram(view, width ? measure(*width) : todaychord::metrics::designWidth);
  return {{"scale", layout.scale},
          {"baseFret", layout.baseFret},
          {"displayedFrets", layout.displayedFrets},
          {"dots", encodeList(layout.dots, encodeDot)},
          {"barres", encodeList(layout.barres, encodeBarre)},
          {"noteLabels", encodeList(layout.noteLabels, encodeNoteLabel)}};
}

// Fingers that are not six are no error: there is nothing to say about them.
json::Value fingeringInstructions(const json::Node& parameters, MethodContext&) {
  return todaychord::fingeringInstructions(sixNumbers(parameters.member("position")),
                                           wholeNumbers(parameters.member("fingering")));
}

json::Value encodePoint(const todaychord::Point& point) {
  return json::Value::array({point.x, point.y});
}

json::Value stringShape(const json::Node& parameters, MethodContext&) {
  const double width = measure(parameters.member("width"));
  const double height = measure(parameters.member("height"));
  const todaychord::StringShape shape{measure(parameters.member("displacement")),
                                      measure(parameters.member("touchY"))};
  const todaychord::Curve curve = shape.path(width, height);
  return {{"start", encodePoint(curve.start)},
          {"control1", encodePoint(curve.control1)},
          {"control2", encodePoint(curve.control2)},
          {"end", encodePoint(curve.end)}};
}

constexpr MethodRow rows[] = {
    {"ChordView", chordView},
    {"fingeringInstructions", fingeringInstructions},
    {"stringShape", stringShape},
};

}  // namespace

std::span<const MethodRow> diagramMethods() noexcept {
  return rows;
}

}  // namespace zyndle
