#include "TodayChordExtension/diagram/scene_shapes.h"

#include <cmath>
#include <sstream>
#include <tuple>

#include <gtest/gtest.h>

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
  const std::tuple<Rectangle, CornerRadii, const char*> rows[] = {
      {{1, 2, 30, 40}, {}, "1,2 31,2 31,42 1,42 1,2"},
      {{0, 0, 20, 30}, {1, 2, 3, 4}, "1,0 18,0 (20,2) 20,27 (17,30) 4,30 (0,26) 0,1 (1,0)"},
      {{0, 0, 20, 10}, {8, 8, 4.5, 4.5}, "8,0 12,0 (20,8) (18,10) 2,10 (0,8) (8,0)"},
      {{0, 0, 4, 9}, CornerRadii::all(99), "2,0 (4,2) 4,7 (2,9) (0,7) 0,2 (2,0)"}};
  for (const auto& [frame, radii, path] : rows) {
    EXPECT_EQ(describe(roundedRectangle(frame, radii)), path);
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

}  // namespace
}  // namespace todaychord
