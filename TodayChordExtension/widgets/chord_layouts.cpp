#include "TodayChordExtension/widgets/chord_layouts.h"

#include <string>

#include "TodayChordExtension/diagram/scene_items.h"
#include "TodayChordExtension/widgets/widget_chord.h"
#include "TodayChordExtension/widgets/widget_metrics.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_parts.h"
#include "TodayChordExtension/widgets/widget_text.h"

namespace todaychord {
namespace {

constexpr WholeNumber smallTitleLength = 8;

// Texts and pictures one above the other, all of one anchor and width.
class Column {
 public:
  Column(double x, double width, TextAnchor anchor) : x_(x), width_(width), anchor_(anchor) {}

  void addText(const std::string& text, const Font& font, const Color& color, double baseline) {
    if (text.empty()) return;
    items.push_back({fitLine(text, {font, color, anchor_}, {x_, baseline}, width_)});
  }

  void addLabel(double baseline) {
    addText(inCapitals(localized("Chord of the Day")), {boldFont, widgetMetrics::footnote},
            widgetPalette::accent, baseline);
  }

  void addButton(double y) {
    const double left = anchor_ == TextAnchor::middle ? widgetMetrics::button::width / 2 : 0;
    append(items, drawLearnMore({x_ - left, y}));
  }

  SceneItems items;

 private:
  double x_;
  double width_;
  TextAnchor anchor_;
};

// "x  3  2  0  1  0": what a string has, lowest string first; `none` for those that have nothing.
std::string listStrings(const WholeNumbers& values, WholeNumber least, const char* none) {
  std::string list;
  for (const WholeNumber value : values) {
    list += (list.empty() ? "" : "  ") + (value < least ? none : std::to_string(value));
  }
  return list;
}

// What is known of a chord, a line each: its tones, frets and fingers; then the button.
SceneItems drawFacts(const DayChord& chord) {
  namespace layout = widgetMetrics::extraLargeChord;
  Column names(layout::columnX, layout::factX, TextAnchor::start);
  Column facts(layout::columnX + layout::factX, layout::columnWidth - layout::factX,
               TextAnchor::start);
  double baseline = layout::firstFactBaseline;
  const auto add = [&](const std::string& name, const std::string& fact) {
    names.addText(name, {regularFont, layout::factFont}, widgetPalette::accent, baseline);
    facts.addText(fact, {regularFont, layout::factFont}, widgetPalette::title, baseline);
    baseline += layout::factPitch;
  };
  if (const std::string tones = widgetTones(chord.chord); !tones.empty()) {
    add(localized("Notes"), tones);
  }
  if (chord.diagram) {
    add(localized("Frets"), listStrings(chord.diagram->position, 0, "x"));
    add(localized("Fingers"), listStrings(chord.diagram->fingering, 1, "–"));
  }
  Column below(layout::columnX, layout::columnWidth, TextAnchor::start);
  if (facts.items.empty()) {
    below.addText(chordOfTheDayTones(chord.chord), {regularFont, layout::factFont},
                  widgetPalette::subtitle, baseline);
    baseline += layout::factPitch;
  }
  below.addButton(baseline + layout::buttonBelowFacts);
  append(names.items, facts.items);
  append(names.items, below.items);
  return names.items;
}

}  // namespace

SceneItem drawPicture(const std::optional<ChordView>& diagram, double middleX, double top,
                      double scale, double iconSide) {
  if (diagram) return drawDiagramAt(*diagram, middleX, top, scale);
  const double height = widgetMetrics::diagramInk * scale;
  return {drawCentred(stackIcon, {middleX - height / 2, top, height, height}, iconSide,
                      widgetPalette::quietIcon)};
}

SceneItems drawSmallLayout(const DayChord& chord, const Rectangle& frame) {
  namespace layout = widgetMetrics::smallChord;
  const double middle = frame.width / 2;
  Column column(middle, layout::titleWidth, TextAnchor::middle);
  const std::string title = widgetTitle(chord.chord, smallTitleLength);
  if (title.empty()) {
    const Rectangle aboveText{0, 0, frame.width, layout::loneTextBaseline};
    column.addText(chordOfTheDayTitle(chord.chord, smallTitleLength),
                   {regularFont, widgetMetrics::footnote}, widgetPalette::subtitle,
                   layout::loneTextBaseline);
    column.items.push_back(
        {drawCentred(stackIcon, aboveText, layout::icon, widgetPalette::quietIcon)});
    return column.items;
  }
  column.addText(title, {regularFont, layout::titleFont}, widgetPalette::title,
                 layout::titleBaseline);
  column.items.push_back(
      drawPicture(chord.diagram, middle, layout::diagramY, layout::diagramScale, layout::icon));
  return column.items;
}

SceneItems drawMediumLayout(const DayChord& chord, const Rectangle&) {
  namespace layout = widgetMetrics::mediumChord;
  Column column(layout::columnX, layout::columnWidth, TextAnchor::start);
  column.addLabel(layout::labelBaseline);
  column.addText(chordOfTheDayTitle(chord.chord, titleLength), {regularFont, layout::titleFont},
                 widgetPalette::title, layout::titleBaseline);
  column.addText(chordOfTheDayTones(chord.chord), {regularFont, widgetMetrics::footnote},
                 widgetPalette::subtitle, layout::tonesBaseline);
  column.addButton(layout::buttonY);
  column.items.push_back(drawPicture(chord.diagram, layout::diagramMiddleX, layout::diagramY,
                                     layout::diagramScale, layout::icon));
  return column.items;
}

SceneItems drawLargeLayout(const DayChord& chord, const Rectangle& frame) {
  namespace layout = widgetMetrics::largeChord;
  const double middle = frame.width / 2;
  Column column(middle, layout::textWidth, TextAnchor::middle);
  column.addLabel(layout::labelBaseline);
  column.addText(chordOfTheDayTitle(chord.chord, titleLength), {regularFont, layout::titleFont},
                 widgetPalette::title, layout::titleBaseline);
  column.addText(chordOfTheDayTones(chord.chord), {regularFont, layout::tonesFont},
                 widgetPalette::subtitle, layout::tonesBaseline);
  column.items.push_back(
      drawPicture(chord.diagram, middle, layout::diagramY, layout::diagramScale, layout::icon));
  column.addButton(layout::buttonY);
  return column.items;
}

SceneItems drawExtraLargeLayout(const DayChord& chord, const Rectangle&) {
  namespace layout = widgetMetrics::extraLargeChord;
  Column column(layout::columnX, layout::columnWidth, TextAnchor::start);
  column.addLabel(layout::labelBaseline);
  column.addText(chordOfTheDayTitle(chord.chord, titleLength), {regularFont, layout::titleFont},
                 widgetPalette::title, layout::titleBaseline);
  append(column.items, drawFacts(chord));
  column.items.push_back(drawPicture(chord.diagram, layout::diagramMiddleX, layout::diagramY,
                                     layout::diagramScale, layout::icon));
  return column.items;
}

}  // namespace todaychord
