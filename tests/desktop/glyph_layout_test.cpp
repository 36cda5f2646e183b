#include "Desktop/glyph_layout.h"

#include <tuple>

#include <gtest/gtest.h>

#include "Desktop/font_library.h"
#include "Desktop/typefaces.h"
#include "TodayChordExtension/diagram/text_width.h"

namespace desktop {
namespace {

const todaychord::Font medium{"Space Grotesk Medium", 100};
const todaychord::Font semiBold{"SpaceGrotesk-SemiBold", 100};

double widthOf(const std::string& text, const todaychord::Font& font = medium) {
  return layOutGlyphs(text, font).width;
}

// Thousandths of the font size, as another reader of the fonts tells them.
TEST(GlyphLayout, BringsPairsOfLettersTogether) {
  const std::tuple<todaychord::Font, std::string, double> rows[] = {
      {medium, "To", -97},   {medium, "Tu", -74},  {medium, "AY", -74}, {medium, "rd", -18},
      {medium, "'s", -7},    {medium, "aj", 0},    {medium, "HH", 0},   {semiBold, "To", -96},
      {semiBold, "F/", -35}, {semiBold, "Va", -31}};
  for (const auto& [font, pair, kerning] : rows) {
    const double apart = widthOf(pair.substr(0, 1), font) + widthOf(pair.substr(1), font);
    EXPECT_NEAR(widthOf(pair, font) - apart, kerning / 10, 0.01) << font.name << ' ' << pair;
  }
}

std::string encode(unsigned code) {
  std::string text;
  if (code < 0x80) return {static_cast<char>(code)};
  if (code >= 0x800) text += static_cast<char>(0xE0U | code >> 12U);
  text += static_cast<char>(code >= 0x800 ? 0x80U | (code >> 6U & 0x3FU) : 0xC0U | code >> 6U);
  return text + static_cast<char>(0x80U | (code & 0x3FU));
}

// Scenes are laid out by largestTextWidth, which must not promise too little room.
TEST(GlyphLayout, IsNeverWiderThanScenesReckon) {
  const auto expectRoom = [](const std::string& text, const todaychord::Font& font) {
    EXPECT_LE(widthOf(text, font), todaychord::largestTextWidth(text, font.size) + 1e-9)
        << font.name << ' ' << text;
  };
  constexpr unsigned firstSurrogate = 0xD800;
  for (const todaychord::Font& font : {medium, semiBold}) {
    const FontFace& face = shippedFace(typefaceCalled(font.name).file);
    for (unsigned code = ' '; code < firstSurrogate; ++code) {
      if (const std::string character = encode(code); face.glyphOf(character) != 0) {
        expectRoom(character, font);
      }
    }
    for (char first = ' '; first <= '~'; ++first) {
      for (char second = ' '; second <= '~'; ++second) expectRoom({first, second}, font);
    }
    for (const char* text : {"♭", "♮", "♯", "𝄪", "𝄫", "\x80", "\x01", "\x7F", "\u0085"}) {
      expectRoom(text, font);
    }
  }
}

TEST(GlyphLayout, TakesLettersThatAFaceLacksFromOthers) {
  const std::string unknown = "\xEF\xBF\xBD";
  const std::pair<const char*, std::vector<std::string>> rows[] = {{"", {}},
                                                                   {"C major", {"C major"}},
                                                                   {"B♭m", {"B", "♭", "m"}},
                                                                   {"♯♭𝄪", {"♯", "♭", "𝄪"}},
                                                                   {"a\tb\n", {"a b "}},
                                                                   {"a\u200D\uFE0Fb\uFEFF", {"ab"}},
                                                                   {"a\xFF", {"a", unknown}},
                                                                   {"\x01", {unknown}}};
  for (const auto& [text, wanted] : rows) {
    std::vector<std::string> runs;
    for (const GlyphRun& run : layOutGlyphs(text, medium).runs) {
      runs.push_back(run.text);
      EXPECT_EQ(run.glyphs.size(), run.clusters.size()) << text;
    }
    EXPECT_EQ(runs, wanted) << text;
  }
  EXPECT_EQ(widthOf("C major", {"no such typeface", 100}), widthOf("C major"));
}

TEST(GlyphLayout, RaisesMusicSigns) {
  const GlyphLine line = layOutGlyphs("B♭♯", medium);
  ASSERT_EQ(line.runs.size(), 3U);
  EXPECT_EQ(line.runs[0].glyphs[0].y, 0);
  EXPECT_EQ(line.runs[1].glyphs[0].y, -2);
  EXPECT_EQ(line.runs[1].size, 135);
  EXPECT_EQ(line.runs[2].glyphs[0].y, -12);
  EXPECT_NEAR(line.runs[2].glyphs[0].x, widthOf("B") + widthOf("♭"), 1e-9);
}

// Nothing may be read behind the end of a table, nor forever.
TEST(GlyphLayout, KnowsNoPairsInDamagedTables) {
  for (const char byte : {'\0', '\1', '\x7F', '\xFF'}) {
    for (std::size_t size = 0; size < 100; ++size) {
      EXPECT_EQ(PairKerning(std::string(size, byte)).between(1, 2), 0) << size;
    }
  }
  // Lists of a feature, its lookup and its subtable whose entries lead far outside.
  std::string table(40, '\xFF');
  table.replace(6, 4, std::string("\0\x0A\0\x20", 4));
  table.replace(10, 8, std::string("\0\1kern\0\1", 8));
  EXPECT_EQ(PairKerning(table).between(1, 2), 0);
}

}  // namespace
}  // namespace desktop
