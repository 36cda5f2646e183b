#include "Tonelake/content/roman_numeral.h"

#include <tuple>

#include <gtest/gtest.h>

#include "tests/support/recording_diagnostics.h"

namespace tonelake {
namespace {

TEST(RomanNumeral, HasTheValueOfItsLetters) {
  const std::tuple<std::string, WholeNumber, std::vector<std::string>> rows[] = {
      {"", 0, {}},
      {"IV", 4, {}},
      {"VI", 6, {}},
      {"VII", 7, {}},
      {"IX", 9, {}},
      {"IIX", 10, {}},
      {"MCDXLIV", 1444, {}},
      {"iv", 0, {"Invalid Roman numeral character: v"}},
      {"I♭I", 0, {"Invalid Roman numeral character: ♭"}},
  };
  for (const auto& [numeral, value, lines] : rows) {
    testing::RecordingDiagnostics diagnostics;
    EXPECT_EQ(RomanNumeral::valueOf(numeral, diagnostics), value) << numeral;
    EXPECT_EQ(diagnostics.lines(), lines) << numeral;
  }
}

}  // namespace
}  // namespace tonelake
