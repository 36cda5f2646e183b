#include "TodayChordExtension/diagram/scene_placement.h"

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/scene_shapes.h"

namespace todaychord {
namespace {

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

}  // namespace
}  // namespace todaychord
