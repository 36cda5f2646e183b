#include "TodayChordExtension/diagram/scene_shapes.h"

#include <cmath>

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/scene_placement.h"
#include "tests/support/scene_parts.h"

namespace todaychord {
namespace {

TEST(SceneShapes, LetTheLowerRadiiGiveWay) {
  struct Case {
    Rectangle frame;
    CornerRadii radii;
    Path path;
  };
  const double k = 0.5522847498;
  const std::vector<Case> cases{
      {{1, 2, 30, 40},
       {},
       {MoveTo{{1, 2}}, LineTo{{31, 2}}, LineTo{{31, 42}}, LineTo{{1, 42}}, LineTo{{1, 2}},
        ClosePath{}}},
      {{0, 0, 20, 10},
       {8, 8, 4.5, 4.5},
       {MoveTo{{8, 0}}, LineTo{{12, 0}}, CurveTo{{12 + 8 * k, 0}, {20, 8 - 8 * k}, {20, 8}},
        CurveTo{{20, 8 + 2 * k}, {18 + 2 * k, 10}, {18, 10}}, LineTo{{2, 10}},
        CurveTo{{2 - 2 * k, 10}, {0, 8 + 2 * k}, {0, 8}},
        CurveTo{{0, 8 - 8 * k}, {8 - 8 * k, 0}, {8, 0}}, ClosePath{}}},
  };
  for (const Case& each : cases) {
    const Path path = roundedRectangle(each.frame, each.radii);
    ASSERT_EQ(path.size(), each.path.size());
    for (std::size_t i = 0; i < path.size(); ++i) {
      ASSERT_EQ(path[i].index(), each.path[i].index()) << i;
      const auto* curve = std::get_if<CurveTo>(&path[i]);
      if (curve == nullptr) {
        EXPECT_EQ(path[i], each.path[i]) << i;
        continue;
      }
      const auto& wanted = std::get<CurveTo>(each.path[i]);
      EXPECT_NEAR(curve->control1.x, wanted.control1.x, 1e-9) << i;
      EXPECT_NEAR(curve->control1.y, wanted.control1.y, 1e-9) << i;
      EXPECT_NEAR(curve->control2.x, wanted.control2.x, 1e-9) << i;
      EXPECT_NEAR(curve->control2.y, wanted.control2.y, 1e-9) << i;
      EXPECT_EQ(curve->to, wanted.to) << i;
    }
  }
}

TEST(SceneShapes, DrawCirclesThatAreRound) {
  const Point centre{7, -3};
  const Path path = circle(centre, 10);
  Point from = std::get<MoveTo>(path.front()).to;
  int quarters = 0;
  for (const PathStep& step : path) {
    const auto* curve = std::get_if<CurveTo>(&step);
    if (curve == nullptr) continue;
    for (double t = 0; t <= 1; t += 0.125) {
      const double u = 1 - t;
      const auto at = [&](double Point::*axis) {
        return u * u * u * from.*axis + 3 * u * u * t * curve->control1.*axis +
               3 * u * t * t * curve->control2.*axis + t * t * t * curve->to.*axis;
      };
      EXPECT_NEAR(std::hypot(at(&Point::x) - centre.x, at(&Point::y) - centre.y), 10, 0.003);
    }
    from = curve->to;
    ++quarters;
  }
  EXPECT_EQ(quarters, 4);
  EXPECT_EQ(from, std::get<MoveTo>(path.front()).to);
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
  for (const Case& each : std::vector<Case>{{"", 0, 0},
                                            {"iiii", 104, 125},
                                            {"WWWW", 357, 380},
                                            {"C major", 359, 470},
                                            {"12fr", 187, 225},
                                            {"B♭♭", 160, 175},
                                            {"日本", 200, 215}}) {
    const double width = largestTextWidth(each.text, 100);
    EXPECT_GE(width, each.smallest) << each.text;
    EXPECT_LE(width, each.largest) << each.text;
    EXPECT_LE(largestTextWidth(each.text, fittingFontSize(each.text, 20, 10)), 10 + 1e-9);
  }
  EXPECT_EQ(fittingFontSize("C major", 20, 500), 20);
}

}  // namespace
}  // namespace todaychord
