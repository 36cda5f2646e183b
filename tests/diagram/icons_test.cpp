#include "TodayChordExtension/diagram/icons.h"

#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/icon_path.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "TodayChordExtension/widgets/launcher_tools.h"
#include "Tonelake/content/curated_chord_lists.h"
#include "tests/support/scene_parts.h"

namespace todaychord {
namespace {

using testing::Box;
using testing::boxOf;
using testing::collect;

Box boxOfIcon(const ImageItem& image) {
  Box box;
  for (const PathItem& item : collect<PathItem>(drawIcon(image))) {
    const Box part = boxOf(item);
    box.include({part.left, part.top});
    box.include({part.right, part.bottom});
  }
  return box;
}

TEST(Icons, HasEveryIconThatIsAskedFor) {
  std::vector<std::string> names{"magnifyingglass", "chevron.right", "square.stack.3d.up.fill",
                                 "music.note.square.stack.fill"};
  for (const LauncherTool& tool : launcherTools) {
    names.emplace_back(tool.image.empty() ? tool.systemImage : tool.image);
  }
  for (const auto& [category, list] : tonelake::curatedChordLists()) {
    names.push_back(list.imageName);
  }
  for (const std::string& name : names) EXPECT_TRUE(hasIcon(name)) << name;
  for (const char* name : {"", "chevron", "Jazz", "chevron.right "}) {
    EXPECT_FALSE(hasIcon(name)) << name;
    EXPECT_TRUE(drawIcon({name, {0, 0, 24, 24}, {}}).empty()) << name;
  }
}

TEST(Icons, FillTheGridAndStayOnIt) {
  constexpr double smallest = 7;  // the narrowest is an arrow
  for (const std::string_view name : iconNames()) {
    const Box box = boxOfIcon({std::string(name), {0, 0, iconGrid, iconGrid}, {}});
    EXPECT_GE(box.left, 0) << name;
    EXPECT_GE(box.top, 0) << name;
    EXPECT_LE(box.right, iconGrid) << name;
    EXPECT_LE(box.bottom, iconGrid) << name;
    EXPECT_GT(box.right - box.left, smallest) << name;
    EXPECT_GT(box.bottom - box.top, smallest) << name;
    EXPECT_NEAR(box.centre().x, iconGrid / 2, 1) << name;
    EXPECT_NEAR(box.centre().y, iconGrid / 2, 1) << name;
  }
}

TEST(Icons, StandInTheMiddleOfTheirFrames) {
  const Color tint{0xCC66DA, 0.5};
  for (const Rectangle& frame :
       {Rectangle{10, 20, 48, 48}, Rectangle{-2, 20, 72, 48}, Rectangle{10, 10, 48, 68}}) {
    const auto items = collect<PathItem>(drawIcon({"chevron.right", frame, tint}));
    ASSERT_EQ(items.size(), 1U);
    EXPECT_EQ(items[0].path, (Path{MoveTo{{28, 30}}, LineTo{{42, 44}}, LineTo{{28, 58}}}));
    EXPECT_EQ(std::get<Color>(items[0].stroke->paint), tint);
    EXPECT_EQ(items[0].stroke->width, 3);
  }
}

TEST(IconPath, ReadsLettersWithTheirNumbers) {
  const Path disc = circle({1, 2}, 3);
  Path discAndLine = disc;
  discAndLine.emplace_back(MoveTo{{0.5, -1}});
  discAndLine.emplace_back(LineTo{{2, 3}});
  struct Case {
    std::string text;
    std::optional<Path> path;
  };
  for (const Case& each : std::vector<Case>{
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
           {"M1,2", std::nullopt}}) {
    EXPECT_EQ(readIconPath(each.text), each.path) << each.text;
  }
}

}  // namespace
}  // namespace todaychord
