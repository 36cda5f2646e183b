#include "TodayChordExtension/diagram/scene_shapes.h"

#include <cmath>
#include <sstream>

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/scene_placement.h"
#include "tests/support/scene_parts.h"

namespace todaychord {
namespace {

// Where the steps of a path end, and which of them are curves: "8,0 12,0 (20,8)".
std::string describe(const Path& path) {
  std::ostringstream text;
  for (const PathStep& step : path) {
    if (const auto* move = std::get_if<MoveTo>(&step)) text << move->to.x << ',' << move->to.y;
    if (const auto* line = std::get_if<LineTo>(&step)) {
      text << ' ' << line->to.x << ',' << line->to.y;
    }
    if (const auto* curve = std::get_if<CurveTo>(&step)) {
      text << " (" << curve->to.x << ',' << curve->to.y << ')';
    }
  }
  return text.str();
}

TEST(SceneShapes, LetTheLowerRadiiGiveWay) {
  struct Case {
    Rectangle frame;
    CornerRadii radii;
    std::string path;
  };
  for (const Case& each : std::vector<Case>{
           {{1, 2, 30, 40}, {}, "1,2 31,2 31,42 1,42 1,2"},
           {{0, 0, 20, 30}, {1, 2, 3, 4}, "1,0 18,0 (20,2) 20,27 (17,30) 4,30 (0,26) 0,1 (1,0)"},
           {{0, 0, 20, 10}, {8, 8, 4.5, 4.5}, "8,0 12,0 (20,8) (18,10) 2,10 (0,8) (8,0)"},
           {{0, 0, 4, 9}, CornerRadii::all(99), "2,0 (4,2) 4,7 (2,9) (0,7) 0,2 (2,0)"}}) {
    EXPECT_EQ(describe(roundedRectangle(each.frame, each.radii)), each.path);
  }
}

// Through four points of the circle, and no further from it between them than the eye can see.
TEST(SceneShapes, DrawCirclesThatAreRound) {
  const Path path = circle({7, -3}, 10);
  EXPECT_EQ(describe(path), "7,-13 (17,-3) (7,7) (-3,-3) (7,-13)");
  const Point from = std::get<MoveTo>(path.at(0)).to;
  const CurveTo curve = std::get<CurveTo>(path.at(1));
  const double x = (from.x + 3 * curve.control1.x + 3 * curve.control2.x + curve.to.x) / 8;
  const double y = (from.y + 3 * curve.control1.y + 3 * curve.control2.y + curve.to.y) / 8;
  EXPECT_NEAR(std::hypot(x - 7, y + 3), 10, 0.003);
}

TEST(ScenePlacement, MovesAndScalesEveryLength) {
  const Color color{0x123456, 0.5};
  const SceneItems items{
      {PathItem{line({1, 2}, {3, 4}), RadialGradient{{5, 6}, 7, {{0, color}}},
                Stroke{LinearGradient{{8, 9}, {10, 11}, {{1, color}}}, 12, 13}, 0.5}},
      {SceneGroup{"group",
                  {{TextItem{"text", {"font", 14}, TextAnchor::end, {15, 16}, color}},
                   {ImageItem{"image", {17, 18, 19, 20}, color}},
                   {LinkArea{{21, 22, 23, 24}, "address", "label"}}}}}};
  const SceneItems wanted{
      {PathItem{line({102, 1004}, {106, 1008}), RadialGradient{{110, 1012}, 14, {{0, color}}},
                Stroke{LinearGradient{{116, 1018}, {120, 1022}, {{1, color}}}, 24, 13}, 0.5}},
      {SceneGroup{"group",
                  {{TextItem{"text", {"font", 28}, TextAnchor::end, {130, 1032}, color}},
                   {ImageItem{"image", {134, 1036, 38, 40}, color}},
                   {LinkArea{{142, 1044, 46, 48}, "address", "label"}}}}}};
  EXPECT_EQ(placed(items, {{100, 1000}, 2}), wanted);
}

TEST(TextWidth, FitsTextsIntoAWidth) {
  struct Case {
    std::string text;
    double smallest;  // widths at size 100 in the real typefaces
    double largest;
  };
  const Case cases[] = {{"", 0, 0},         {"iiii", 104, 125},
                        {"WWWW", 357, 380}, {"C major", 359, 470},
                        {"B♭♭", 190, 205},  {"日本", 200, 215}};
  for (const Case& each : cases) {
    const double width = largestTextWidth(each.text, 100);
    EXPECT_GE(width, each.smallest) << each.text;
    EXPECT_LE(width, each.largest) << each.text;
    EXPECT_LE(largestTextWidth(each.text, fittingFontSize(each.text, 20, 10)), 10 + 1e-9);
  }
  EXPECT_EQ(fittingFontSize("C major", 20, 500), 20);
}

}  // namespace
}  // namespace todaychord
