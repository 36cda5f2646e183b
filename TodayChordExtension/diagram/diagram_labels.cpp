#include "TodayChordExtension/diagram/diagram_labels.h"

#include <string>
#include <utility>

#include "TodayChordExtension/diagram/diagram_places.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/diagram/text_width.h"

namespace todaychord {
namespace {

PathItem drawOpenMark(double x, const ChordView& view) {
  return {circle({x, metrics::markY}, metrics::openMarkRadius), std::nullopt,
          Stroke{view.stringColor, metrics::markStroke}};
}

PathItem drawMutedMark(double x, const ChordView& view) {
  const double reach = metrics::mutedMarkReach;
  const double y = metrics::markY;
  Path cross = line({x - reach, y - reach}, {x + reach, y + reach});
  const Path rising = line({x - reach, y + reach}, {x + reach, y - reach});
  cross.insert(cross.end(), rising.begin(), rising.end());
  return {std::move(cross), std::nullopt,
          Stroke{view.stringColor, metrics::markStroke, metrics::stringMiterLimit, LineCap::round}};
}

}  // namespace

SceneItems drawMarks(const ChordView& view, const DiagramLayout& layout) {
  SceneItems items;
  for (int i = 0; i < metrics::stringCount; ++i) {
    const auto string = static_cast<std::size_t>(i);
    if (string >= layout.displayedFrets.size()) break;
    const WholeNumber row = layout.displayedFrets[string];
    if (row > 0 || row == noRow) continue;
    items.push_back({row == 0 ? drawOpenMark(stringX(i), view) : drawMutedMark(stringX(i), view)});
  }
  return items;
}

SceneItems drawBaseFret(const ChordView& view, const DiagramLayout& layout) {
  if (layout.baseFret == 1) return {};
  const std::string text = std::to_string(layout.baseFret) + "fr";
  const double size = fittingFontSize(text, view.topFont.size, metrics::baseFretWidth);
  const double x = view.isLeftHanded ? stringX(metrics::stringCount - 1) + metrics::baseFretGap
                                     : stringX(0) - metrics::baseFretGap;
  return {{TextItem{text,
                    {view.topFont.name, size},
                    view.isLeftHanded ? TextAnchor::start : TextAnchor::end,
                    {x, baselineAround(rowY(1), size)},
                    view.stringColor}}};
}

SceneItems drawNoteLabels(const ChordView& view, const DiagramLayout& layout) {
  SceneItems items;
  for (const NoteLabel& label : layout.noteLabels) {
    if (label.note.empty()) continue;
    const double size = fittingFontSize(label.note, view.font.size, metrics::noteLabelWidth);
    items.push_back({TextItem{label.note,
                              {view.font.name, size},
                              TextAnchor::middle,
                              {label.x, baselineAround(label.y, size)},
                              view.stringColor}});
  }
  return items;
}

}  // namespace todaychord
