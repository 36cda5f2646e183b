#include "Tonelake/foundation/text.h"

#include <gtest/gtest.h>

namespace tonelake {
namespace {

TEST(Text, CountsCharactersAndKnowsGoodUtf8) {
  EXPECT_EQ(countCharacters("C♯𝄪 major"), 9U);
  for (const char* good : {"", "a", "♯", "𝄪", "\xEF\xBF\xBD", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_TRUE(isValidUtf8(good)) << good;
  }
  for (const char* bad : {"\x80", "\xC3", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xE2\x99",
                          "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "a\xFF"}) {
    EXPECT_FALSE(isValidUtf8(bad)) << bad;
  }
}

}  // namespace
}  // namespace tonelake
