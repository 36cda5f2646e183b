// Bass patterns stand for every kind.

#include <gtest/gtest.h>

#include "Tonelake/patterns/pattern_json.h"

namespace tonelake {
namespace {

TEST(Patterns, AreTheSameByTheirIds) {
  const BassPattern bass{"a", "", {}, TimeSignature::ts_44};
  const BassPattern twin{"a", "", {}, TimeSignature::ts_44};
  EXPECT_NE(bass, twin);
  const json::Value encoded = encodePattern(BassPatternWithComplexity{bass, 1});
  EXPECT_EQ(decodePattern<BassPatternWithComplexity>(json::Node(encoded)).bassPattern, bass);
  const BassPatterns library{{{"A", "", {}, TimeSignature::ts_34}, bass, twin}};
  EXPECT_EQ(library.getBassPattern("a"), &library.bassPatterns[1]);
  EXPECT_EQ(library.getBassPattern("b"), nullptr);

  const json::Value key = json::parse("{}");
  const json::Value number = json::parse("0.3");
  EXPECT_THROW(decodePattern<BassPitch>(json::Node(key)), TypeMismatch);
  EXPECT_THROW(decodePattern<NoteDuration>(json::Node(number)), CorruptedData);
}

}  // namespace
}  // namespace tonelake
