#include "TodayChordExtension/diagram/diagram_layout.h"

#include <iomanip>
#include <sstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/chord_views.h"

namespace todaychord {
namespace {

using ::testing::ElementsAre;
using todaychord::testing::openC;
using todaychord::testing::viewOf;

TEST(DiagramLayout, ShiftsHighShapesSoThatTheLowestFretIsInRowOne) {
  struct Case {
    WholeNumbers position;
    WholeNumber baseFret;
    WholeNumbers displayed;
  };
  const std::vector<Case> cases{
      {{-1, 3, 2, 0, 1, 0}, 1, {-1, 3, 2, 0, 1, 0}},
      {{-1, 5, 7, 7, 6, 5}, 5, {-1, 1, 3, 3, 2, 1}},
      {{2, 4, 4, 3, 2, 2}, 1, {2, 4, 4, 3, 2, 2}},      // the last that still has the nut
      {{-1, -1, 2, 3, 5, 0}, 2, {-1, -1, 1, 2, 4, 0}},  // fret 5 is one too many
      {{0, 0, 0, 0, 0, 0}, 1, {0, 0, 0, 0, 0, 0}},
      {{0, -1, -1, 12, 14, 15}, 12, {0, -1, -1, 1, 3, 4}},
  };
  for (const Case& each : cases) {
    const DiagramLayout layout = layOutDiagram(viewOf({}, each.position, {}), 135);
    EXPECT_EQ(layout.baseFret, each.baseFret) << ::testing::PrintToString(each.position);
    EXPECT_EQ(layout.displayedFrets, each.displayed) << ::testing::PrintToString(each.position);
  }
}

TEST(DiagramLayout, PlacesDotsOnStringsAndRows) {
  EXPECT_THAT(
      layOutDiagram(openC(), 135).dots,
      ElementsAre(FingerDot{1, 40.5, 82, 3}, FingerDot{2, 54.5, 59, 2}, FingerDot{4, 82.5, 36, 1}));
  ChordView leftHanded = openC();
  leftHanded.isLeftHanded = true;
  EXPECT_THAT(
      layOutDiagram(leftHanded, 135).dots,
      ElementsAre(FingerDot{1, 40.5, 36, 1}, FingerDot{3, 68.5, 59, 2}, FingerDot{4, 82.5, 82, 3}));
  // The lowest string moves to the right edge.
  ChordView lowest = viewOf({}, {3, -1, -1, -1, -1, -1}, {2, 0, 0, 0, 0, 0});
  lowest.isLeftHanded = true;
  EXPECT_THAT(layOutDiagram(lowest, 135).dots, ElementsAre(FingerDot{5, 96.5, 82, 2}));
}

// "0-4 row 1 x 35 y 41.2 width 56", lengths to a tenth.
std::string describe(const std::vector<BarreSegment>& barres) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1);
  for (const BarreSegment& each : barres) {
    text << each.startStringIndex << '-' << each.endStringIndex << " row " << each.fret << " x "
         << each.x << " y " << each.y << " width " << each.width << "; ";
  }
  return text.str();
}

TEST(DiagramLayout, JoinsNeighboursThatOneFingerHolds) {
  struct Case {
    WholeNumbers position;
    WholeNumbers fingering;
    bool isLeftHanded;
    std::string barres;
  };
  // clang-format off
  const std::vector<Case> cases{
      {{1, 3, 3, 2, 1, 1}, {1, 3, 4, 2, 1, 1}, false,
       "0-4 row 1 x 35.0 y 41.2 width 56.0; 4-5 row 1 x 91.0 y 41.2 width 14.0; "},
      {{1, 3, 3, 2, 1, 1}, {1, 3, 4, 2, 1, 1}, true,
       "0-1 row 1 x 35.0 y 41.2 width 14.0; 1-5 row 1 x 49.0 y 41.2 width 56.0; "},
      // Finger after finger; rows are the shifted ones.
      {{-1, 5, 7, 7, 7, 5}, {0, 1, 3, 3, 3, 1}, false,
       "1-5 row 1 x 49.0 y 41.2 width 56.0; 2-3 row 3 x 63.0 y 87.2 width 14.0; "
       "3-4 row 3 x 77.0 y 87.2 width 14.0; "},
      // The first string's fret is taken; -1 and 0 are no fingers.
      {{2, -1, -1, -1, -1, 3}, {1, 0, 0, 0, 0, 1}, false, "0-5 row 2 x 35.0 y 64.2 width 70.0; "},
      {{3, 2, 0, 0, 0, 3}, {-1, -1, 0, 0, 0, 4}, false, ""},
  };
  // clang-format on
  for (const Case& each : cases) {
    ChordView view = viewOf({}, each.position, each.fingering);
    view.isLeftHanded = each.isLeftHanded;
    EXPECT_EQ(describe(layOutDiagram(view, 135).barres), each.barres)
        << ::testing::PrintToString(each.position);
  }
}

TEST(DiagramLayout, LabelsSoundingStringsAsTheChordSpellsThem) {
  using tonelake::Note;
  struct Case {
    Chord chord;
    WholeNumbers position;
    bool isLeftHanded;
    std::string labels;  // "index:name", in display order
  };
  const std::vector<Case> cases{
      {testing::cMajor, {-1, 3, 2, 0, 1, 0}, false, "1:C 2:E 3:G 4:C 5:E "},
      {testing::cMajor, {-1, 3, 2, 0, 1, 0}, true, "0:E 1:C 2:G 3:E 4:C "},
      {{Note::C, "minor", 0}, {-1, 3, 5, 5, 4, 3}, false, "1:C 2:G 3:C 4:E♭ 5:G "},
      {{Note::C, "diminished 7th", 0}, {-1, 3, 4, 2, 4, 2}, false, "1:C 2:G♭ 3:B♭♭ 4:E♭ 5:G♭ "},
      {{Note::Fs, "major", 0}, {2, 4, 4, 3, 2, 2}, false, "0:F♯ 1:C♯ 2:F♯ 3:A♯ 4:C♯ 5:F♯ "},
      // D is no chord tone: its slot stays, empty. Fret 13 sounds as fret 1.
      {testing::cMajor, {-1, -1, 0, 0, 13, 12}, false, "2: 3:G 4:C 5:E "},
      {{Note::C, "no such type", 0}, {-1, -1, -1, 0, -1, -1}, false, "3: "},
  };
  for (const Case& each : cases) {
    ChordView view = viewOf(each.chord, each.position, {});
    view.isLeftHanded = each.isLeftHanded;
    EXPECT_TRUE(layOutDiagram(view, 135).noteLabels.empty());
    view.displayNotes = true;
    std::string labels;
    for (const NoteLabel& label : layOutDiagram(view, 135).noteLabels) {
      EXPECT_DOUBLE_EQ(label.x, 33 + 14 * label.stringIndex);
      EXPECT_DOUBLE_EQ(label.y, 135);
      labels += std::to_string(label.stringIndex) + ':' + label.note + ' ';
    }
    EXPECT_EQ(labels, each.labels) << ::testing::PrintToString(each.position);
  }
}

TEST(DiagramLayout, IsNeverSmallerThanHalfSize) {
  for (const auto& [width, scale] : std::vector<std::pair<double, double>>{
           {-1, 0.5}, {60, 0.5}, {67.5, 0.5}, {81, 0.6}, {135, 1}, {270, 2}}) {
    EXPECT_DOUBLE_EQ(diagramScale(width), scale) << width;
  }
}

TEST(DiagramLayout, PlacesWhatIncompleteListsHave) {
  const DiagramLayout layout = layOutDiagram(viewOf({}, {1, 2, 2}, {1}), 135);
  EXPECT_EQ(layout.dots.size(), 3U);
  EXPECT_TRUE(layout.barres.empty());
  EXPECT_TRUE(layOutDiagram(viewOf({}, {}, {1, 1, 1, 1, 1, 1}), 135).barres.empty());
}

}  // namespace
}  // namespace todaychord
