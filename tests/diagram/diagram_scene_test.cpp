#include "TodayChordExtension/diagram/diagram_scene.h"

#include <tuple>

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/scene_placement.h"
#include "tests/support/chord_views.h"
#include "tests/support/scene_parts.h"

namespace todaychord {
namespace {

using testing::barreF;
using testing::Box;
using testing::boxOf;
using testing::collect;
using testing::highDm;
using testing::itemsOf;
using testing::manyViews;
using testing::openC;

std::vector<Box> boxesOf(const Scene& scene) {
  std::vector<Box> boxes;
  for (const PathItem& path : collect<PathItem>(scene.items)) boxes.push_back(boxOf(path));
  for (const TextItem& text : collect<TextItem>(scene.items)) boxes.push_back(boxOf(text));
  return boxes;
}

void expectInside(const Scene& scene, const std::string& what) {
  const Box frame{0, 0, scene.width, scene.height};
  for (const Box& box : boxesOf(scene)) EXPECT_TRUE(frame.contains(box)) << what;
}

TEST(DiagramScene, HoldsEveryShapeInsideItsFrame) {
  for (ChordView view : manyViews()) {
    for (const bool isLeftHanded : {false, true}) {
      view.isLeftHanded = isLeftHanded;
      view.displayNotes = isLeftHanded;
      const std::string what = ::testing::PrintToString(view.position);
      expectInside(drawDiagram(view, 60), what);
      expectInside(drawDiagramCard(view, "F♯min/maj7(add11)/WWWWWWWWWWWW", 300), what);
    }
  }
}

// String s (6 the lowest) lies at 33 + 14·(6 - s), row k is centred at 23·k + 19.5.
TEST(DiagramScene, PutsEveryDotOnItsStringInItsRow) {
  for (const ChordView& view : manyViews()) {
    const auto baseFret = layOutDiagram(view, 135).baseFret;
    const Scene scene = drawDiagram(view, 135);
    for (int string = 1; string <= 6; ++string) {
      const auto number = std::to_string(string);
      const double x = 33 + 14 * (6 - string);
      const auto strings = collect<PathItem>(itemsOf("string-" + number, scene.items));
      ASSERT_EQ(strings.size(), 1U);
      EXPECT_DOUBLE_EQ(boxOf(strings.front()).centre().x, x);
      const auto fret = view.position[static_cast<std::size_t>(6 - string)];
      const auto faces = collect<PathItem>(itemsOf("dot-" + number, scene.items));
      ASSERT_EQ(faces.empty(), fret <= 0) << ::testing::PrintToString(view.position);
      for (const PathItem& face : faces) {
        EXPECT_NEAR(boxOf(face).centre().x, x, 1e-9);
        EXPECT_NEAR(boxOf(face).centre().y, 23 * double(fret - baseFret + 1) + 19.5, 1e-9);
      }
    }
  }
}

// The board's middle lies at 68.
TEST(DiagramScene, IsMirroredForTheLeftHand) {
  for (ChordView view : manyViews()) {
    const std::vector<Box> right = boxesOf(drawDiagram(view, 135));
    view.isLeftHanded = true;
    const std::vector<Box> left = boxesOf(drawDiagram(view, 135));
    ASSERT_EQ(left.size(), right.size());
    for (const Box& box : right) {
      EXPECT_TRUE(std::any_of(left.begin(), left.end(), [&](const Box& other) {
        return std::abs(other.left - (136 - box.right)) + std::abs(other.right - (136 - box.left)) +
                   std::abs(other.top - box.top) + std::abs(other.bottom - box.bottom) <
               1e-9;
      })) << ::testing::PrintToString(view.position);
    }
  }
}

TEST(DiagramScene, WritesTheBaseFretBesideRowOneOrDrawsTheNut) {
  const std::tuple<ChordView, bool, bool> cases[] = {
      {highDm(), false, true}, {highDm(), true, true}, {barreF(), false, false}};
  for (const auto& [shown, isLeftHanded, hasText] : cases) {
    ChordView view = shown;
    view.isLeftHanded = isLeftHanded;
    view.displayFingering = false;
    const Scene scene = drawDiagram(view, 135);
    const auto texts = collect<TextItem>(scene.items);
    const auto paths = collect<PathItem>(scene.items);
    const bool hasNut = std::any_of(paths.begin(), paths.end(), [&](const PathItem& path) {
      return path.fill == Paint(view.stringColor);
    });
    EXPECT_NE(hasNut, hasText);
    ASSERT_EQ(!texts.empty(), hasText);
    if (texts.empty()) continue;
    EXPECT_EQ(texts.front().text, "5fr");
    EXPECT_EQ(texts.front().anchor, isLeftHanded ? TextAnchor::start : TextAnchor::end);
    EXPECT_DOUBLE_EQ(boxOf(texts.front()).centre().y, 23 + 19.5);
  }
}

// F's first finger holds strings 6, 2 and 1 in row 1, whose bars are 4 high around y 42.5.
TEST(DiagramScene, JoinsTheDotsOfABarre) {
  std::string bars;
  for (const PathItem& path : collect<PathItem>(drawDiagram(barreF(), 135).items)) {
    const Box box = boxOf(path);
    if (box.top != 40.5 || box.bottom != 44.5) continue;
    bars += ::testing::PrintToString(box.left) + " to " + ::testing::PrintToString(box.right) + ' ';
  }
  EXPECT_EQ(bars, "33 to 89 89 to 103 ");
}

TEST(DiagramScene, NumbersTheFingersThatItKnows) {
  ChordView view = openC();
  view.fingering = {0, 3, -1, 0, 5, 0};
  const auto numbers = collect<TextItem>(drawDiagram(view, 135).items);
  ASSERT_EQ(numbers.size(), 1U);
  EXPECT_EQ(numbers.front().text, "3");
  EXPECT_EQ(numbers.front().font, (Font{"SpaceGrotesk-SemiBold", 11.7}));
  EXPECT_DOUBLE_EQ(numbers.front().baseline.x, 47);
  view.displayFingering = false;
  EXPECT_TRUE(collect<TextItem>(drawDiagram(view, 135).items).empty());
}

// Strings keep their number, and with it highlight and swing, when the picture is mirrored.
TEST(DiagramScene, HighlightsAndBendsStringsByNumber) {
  ChordView view = openC();
  view.highlightStrings = {1, 3};
  view.displacement = {0, 0, 0, 0, 0, 5};
  for (const bool isLeftHanded : {false, true}) {
    view.isLeftHanded = isLeftHanded;
    const Scene scene = drawDiagram(view, 270);
    for (int string = 1; string <= 6; ++string) {
      const auto path =
          collect<PathItem>(itemsOf("string-" + std::to_string(string), scene.items)).at(0);
      const auto& stops = std::get<LinearGradient>(path.stroke->paint).stops;
      EXPECT_EQ(stops, string == 1   ? view.stringHighlightGradient
                       : string == 3 ? view.stringHighlightGradientPlain
                                     : view.stringColorGradient)
          << string;
      const bool isOuter = string == 1 || string == 6;
      EXPECT_DOUBLE_EQ(path.stroke->width, isOuter ? 3.5 : 2.5);
      const double bend =
          std::get<CurveTo>(path.path[1]).control1.x - std::get<MoveTo>(path.path[0]).to.x;
      EXPECT_DOUBLE_EQ(bend, string == 1 ? 10 : 0);
    }
  }
}

TEST(DiagramScene, LeavesOutWhatFitsNoRowOrString) {
  ChordView view = testing::viewOf({}, {1, 9, -1, -7, -1, -1, 2, 3}, {1, 1, 1, 1, 1, 1, 1, 1});
  for (const bool isLeftHanded : {false, true}) {
    view.isLeftHanded = isLeftHanded;
    expectInside(drawDiagram(view, 135), "too many");
  }
  const Scene empty = drawDiagram(testing::viewOf({}, {}, {}), 135);
  EXPECT_EQ(empty.title + empty.description, "");
  expectInside(empty, "empty");
}

TEST(DiagramScene, ScalesAsAWhole) {
  const Scene once = drawDiagram(highDm(), 135);
  const Scene twice = drawDiagram(highDm(), 270);
  EXPECT_EQ(twice.items, placed(once.items, {{0, 0}, 2}));
  EXPECT_EQ(twice.height, 2 * once.height);
  EXPECT_EQ(drawDiagram(highDm(), 10), drawDiagram(highDm(), 67.5));
}

TEST(DiagramScene, SaysWhatItShows) {
  const Scene scene = drawDiagram(openC(), 135);
  EXPECT_EQ(scene.title, "C major");
  EXPECT_TRUE(
      scene.description.starts_with("Place the 1st finger on the 1st fret of the 2nd "
                                    "string. Place the 2nd finger"));
  const Scene card = drawDiagramCard(openC(), "Today", 300);
  EXPECT_EQ(card.title, "Today");
  EXPECT_EQ(card.description, scene.description);
}

}  // namespace
}  // namespace todaychord
