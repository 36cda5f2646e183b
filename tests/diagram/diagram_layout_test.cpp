#include "TodayChordExtension/diagram/diagram_layout.h"

#include <sstream>
#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/chord_views.h"

namespace todaychord {
namespace {

using todaychord::testing::viewOf;

TEST(DiagramLayout, ShiftsHighShapesSoThatTheLowestFretIsInRowOne) {
  const std::vector<std::tuple<WholeNumbers, WholeNumber, WholeNumbers>> cases{
      {{-1, 5, 7, 7, 6, 5}, 5, {-1, 1, 3, 3, 2, 1}},
      {{2, 4, 4, 3, 2, 2}, 1, {2, 4, 4, 3, 2, 2}},      // the last that still has the nut
      {{-1, -1, 2, 3, 5, 0}, 2, {-1, -1, 1, 2, 4, 0}},  // fret 5 is one too many
      {{0, 0, 0, 0, 0, 0}, 1, {0, 0, 0, 0, 0, 0}},
      {{0, -1, -1, 12, 14, 15}, 12, {0, -1, -1, 1, 3, 4}},
  };
  for (const auto& [position, baseFret, displayed] : cases) {
    const DiagramLayout layout = layOutDiagram(viewOf({}, position, {}), 135);
    EXPECT_EQ(layout.baseFret, baseFret) << ::testing::PrintToString(position);
    EXPECT_EQ(layout.displayedFrets, displayed) << ::testing::PrintToString(position);
  }
}

// "0-4 row 1 x 35 y 41.2 width 56".
std::string describe(const std::vector<BarreSegment>& barres) {
  std::ostringstream text;
  for (const BarreSegment& each : barres) {
    text << each.startStringIndex << '-' << each.endStringIndex << " row " << each.fret << " x "
         << each.x << " y " << each.y << " width " << each.width << "; ";
  }
  return text.str();
}

TEST(DiagramLayout, JoinsNeighboursThatOneFingerHolds) {
  // clang-format off
  const std::vector<std::tuple<WholeNumbers, WholeNumbers, bool, std::string>> cases{
      {{1, 3, 3, 2, 1, 1}, {1, 3, 4, 2, 1, 1}, false,
       "0-4 row 1 x 35 y 41.2 width 56; 4-5 row 1 x 91 y 41.2 width 14; "},
      {{1, 3, 3, 2, 1, 1}, {1, 3, 4, 2, 1, 1}, true,
       "0-1 row 1 x 35 y 41.2 width 14; 1-5 row 1 x 49 y 41.2 width 56; "},
      // Finger after finger; rows are the shifted ones.
      {{-1, 5, 7, 7, 7, 5}, {0, 1, 3, 3, 3, 1}, false,
       "1-5 row 1 x 49 y 41.2 width 56; 2-3 row 3 x 63 y 87.2 width 14; "
       "3-4 row 3 x 77 y 87.2 width 14; "},
      // The first string's fret is taken; 0 is no finger.
      {{2, -1, -1, -1, -1, 3}, {1, 0, 0, 0, 0, 1}, false, "0-5 row 2 x 35 y 64.2 width 70; "},
  };
  // clang-format on
  for (const auto& [position, fingering, isLeftHanded, barres] : cases) {
    ChordView view = viewOf({}, position, fingering);
    view.isLeftHanded = isLeftHanded;
    EXPECT_EQ(describe(layOutDiagram(view, 135).barres), barres)
        << ::testing::PrintToString(position);
  }
}

TEST(DiagramLayout, LabelsSoundingStringsAsTheChordSpellsThem) {
  using tonelake::Note;
  struct Case {
    Chord chord;
    WholeNumbers position;
    bool isLeftHanded;
    std::string labels;  // "index:name", in display order
    tonelake::TuningNames tuning = tonelake::Tuning::standard;
  };
  const std::vector<Case> cases{
      {testing::cMajor, {-1, 3, 2, 0, 1, 0}, true, "0:E 1:C 2:G 3:E 4:C "},
      {{Note::C, "diminished 7th", 0}, {-1, 3, 4, 2, 4, 2}, false, "1:C 2:G♭ 3:B♭♭ 4:E♭ 5:G♭ "},
      // D is no chord tone: its slot stays, empty. Fret 13 sounds as fret 1.
      {testing::cMajor, {-1, -1, 0, 0, 13, 12}, false, "2: 3:G 4:C 5:E "},
      {{Note::D, "suspended 4th", 0},
       {0, 0, 0, 0, 0, 0},
       false,
       "0:D 1:A 2:D 3:G 4:A 5:D ",
       {"D", "A", "D", "G", "A", "D"}},
  };
  for (const Case& each : cases) {
    ChordView view = viewOf(each.chord, each.position, {});
    view.isLeftHanded = each.isLeftHanded;
    view.tuning = each.tuning;
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

TEST(DiagramLayout, PlacesWhatIncompleteListsHave) {
  const DiagramLayout layout = layOutDiagram(viewOf({}, {1, 2, 2}, {1}), 135);
  EXPECT_EQ(layout.dots.size(), 3U);
  EXPECT_TRUE(layout.barres.empty());
  // The lowest string is the rightmost for the left hand, however many follow it.
  ChordView left = viewOf({}, {3, 2, 0}, {3, 2, 0, 1, 1, 1});
  left.isLeftHanded = true;
  const DiagramLayout mirrored = layOutDiagram(left, 135);
  EXPECT_EQ(mirrored.displayedFrets, (WholeNumbers{noRow, noRow, noRow, 0, 2, 3}));
  ASSERT_EQ(mirrored.dots.size(), 2U);
  EXPECT_EQ(mirrored.dots[0], (FingerDot{4, 82.5, 59, 2}));
  EXPECT_EQ(mirrored.dots[1], (FingerDot{5, 96.5, 82, 3}));
  EXPECT_TRUE(mirrored.barres.empty());
  EXPECT_TRUE(layOutDiagram(viewOf({}, {}, {1, 1, 1, 1, 1, 1}), 135).barres.empty());
}

}  // namespace
}  // namespace todaychord
