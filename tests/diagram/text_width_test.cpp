#include "TodayChordExtension/diagram/text_width.h"

#include <gtest/gtest.h>

namespace todaychord {
namespace {

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
