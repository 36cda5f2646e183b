#include "TodayChordExtension/diagram/icon_path.h"

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/scene_shapes.h"

namespace todaychord {
namespace {

TEST(IconPath, ReadsLettersWithTheirNumbers) {
  const Path disc = circle({1, 2}, 3);
  Path discAndLine = disc;
  discAndLine.emplace_back(MoveTo{{0.5, -1}});
  discAndLine.emplace_back(LineTo{{2, 3}});
  const std::pair<const char*, std::optional<Path>> rows[] = {
      {"", Path{}},
      {"M1 2L3 4 5 6Z", Path{MoveTo{{1, 2}}, LineTo{{3, 4}}, LineTo{{5, 6}}, ClosePath{}}},
      {" C1 2 3 4 5 -6 ", Path{CurveTo{{1, 2}, {3, 4}, {5, -6}}}},
      {"O1 2 3", disc},
      {"O1 2 3 M.5 -1L2 3", discAndLine},
      {"R0 0 4 4 1", roundedRectangle({0, 0, 4, 4}, CornerRadii::all(1))},
      {"M1", std::nullopt},
      {"M1 2 3", std::nullopt},
      {"M1 L2", std::nullopt},
      {"Z1", std::nullopt},
      {"1 2", std::nullopt},
      {"m1 2", std::nullopt},
      {"A1 2", std::nullopt},
      {"M1,2", std::nullopt}};
  for (const auto& [text, path] : rows) {
    EXPECT_EQ(readIconPath(text), path) << text;
  }
}

}  // namespace
}  // namespace todaychord
