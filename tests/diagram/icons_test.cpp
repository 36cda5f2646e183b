#include "TodayChordExtension/diagram/icons.h"

#include <gtest/gtest.h>

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
  for (const PathItem& item : collect<PathItem>(drawIcon(image))) box.unite(boxOf(item));
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

}  // namespace
}  // namespace todaychord
