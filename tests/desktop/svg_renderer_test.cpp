#include "Desktop/svg_renderer.h"

#include <clocale>
#include <limits>
#include <set>
#include <tuple>

#include <gtest/gtest.h>
#include <pugixml.hpp>

#include "Desktop/number_text.h"
#include "Desktop/svg_text.h"
#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/chord_views.h"
#include "tests/support/scene_parts.h"

namespace desktop {
namespace {

using todaychord::Color;
using todaychord::LinearGradient;
using todaychord::LinkArea;
using todaychord::PathItem;
using todaychord::Scene;
using todaychord::SceneGroup;
using todaychord::TextAnchor;
using todaychord::TextItem;

struct ParsedSvg {
  explicit ParsedSvg(const std::string& text)
      : result(document.load_string(text.c_str(), pugi::parse_full | pugi::parse_ws_pcdata)),
        svg(document.child("svg")) {}

  std::size_t count(const char* query) const { return svg.select_nodes(query).size(); }
  pugi::xml_node first(const char* query) const { return svg.select_node(query).node(); }

  pugi::xml_document document;
  pugi::xml_parse_result result;
  pugi::xml_node svg;
};

TEST(SvgRenderer, WritesTheWholeScene) {
  const Scene scene = drawDiagramCard(todaychord::testing::barreF(), "F major", 300);
  const ParsedSvg parsed(renderSvg(scene));
  ASSERT_TRUE(parsed.result) << parsed.result.description();
  EXPECT_STREQ(parsed.svg.attribute("viewBox").value(), "0 0 300 384");
  EXPECT_STREQ(parsed.svg.attribute("role").value(), "img");
  EXPECT_STREQ(parsed.first("//title").text().get(), "F major");
  EXPECT_STREQ(parsed.first("//desc").text().get(), scene.description.c_str());
  EXPECT_STREQ(parsed.svg.attribute("aria-labelledby").value(),
               parsed.first("//title").attribute("id").value());
  using todaychord::testing::collect;
  EXPECT_EQ(parsed.count("//path"), collect<PathItem>(scene.items).size());
  EXPECT_EQ(parsed.count("//text"), collect<TextItem>(scene.items).size());
  EXPECT_EQ(parsed.count("//g"), collect<SceneGroup>(scene.items).size());
  EXPECT_EQ(parsed.count("//g[@class='string-3']"), 1U);
}

TEST(SvgRenderer, DefinesEachGradientOnce) {
  const ParsedSvg parsed(renderSvg(drawDiagram(todaychord::testing::barreF(), 135), {"f-"}));
  std::set<std::string> ids;
  std::set<std::string> contents;
  for (const auto& found : parsed.svg.select_nodes("/svg/defs/*")) {
    pugi::xml_node node = found.node();
    EXPECT_TRUE(ids.insert(node.attribute("id").value()).second);
    node.remove_attribute("id");
    std::ostringstream content;
    node.print(content);
    EXPECT_TRUE(contents.insert(content.str()).second) << content.str();
  }
  // Fret lines, strings, and the lights on three rows of markers.
  EXPECT_EQ(ids.size(), 5U);
  std::set<std::string> used;
  for (const auto& found : parsed.svg.select_nodes("//@*[starts-with(., 'url(#')]")) {
    const std::string value = found.attribute().value();
    used.insert(value.substr(5, value.size() - 6));
  }
  EXPECT_EQ(used, ids);
  EXPECT_EQ(ParsedSvg(renderSvg({10, 10, "", "", {}})).count("//defs"), 0U);
}

TEST(SvgRenderer, KeepsLinksReachable) {
  const Scene scene{
      20, 10, "Links", "", {{LinkArea{{1, 2, 3.5, 4}, "zyndle://w/c?a=1&b=\"2\"", "C & <D>"}}}};
  const ParsedSvg parsed(renderSvg(scene));
  ASSERT_TRUE(parsed.result);
  EXPECT_STREQ(parsed.svg.attribute("role").value(), "group");
  const pugi::xml_node link = parsed.first("/svg/a");
  EXPECT_STREQ(link.attribute("href").value(), "zyndle://w/c?a=1&b=\"2\"");
  EXPECT_STREQ(link.attribute("aria-label").value(), "C & <D>");
  EXPECT_STREQ(link.child("rect").attribute("width").value(), "3.5");
}

TEST(SvgRenderer, WritesHostileTextsAsPlainText) {
  const std::string unknown = "\xEF\xBF\xBD";
  const std::pair<std::string, std::string> rows[] = {
      {"</text><script>alert('1')</script>", "</text><script>alert('1')</script>"},
      {"]]> & &amp; \"'", "]]> & &amp; \"'"},
      {std::string("nul\0escape\x1b", 11), "nul" + unknown + "escape" + unknown},
      {"\xFF\xED\xA0\x80", unknown + unknown + unknown + unknown},  // a surrogate in the end
      {"\xEF\xBF\xBE", unknown},                                    // U+FFFE
      {"  two  blanks 日本 𝄞", "  two  blanks 日本 𝄞"},
  };
  for (const auto& [text, read] : rows) {
    const TextItem item{text, {text, 10}, TextAnchor::end, {}, {}};
    const ParsedSvg parsed(renderSvg({9, 9, text, text, {{SceneGroup{text, {{item}}}}}}));
    ASSERT_TRUE(parsed.result) << text;
    for (const char* query : {"//title", "//desc", "//text"}) {
      EXPECT_EQ(parsed.first(query).text().get(), read) << query;
    }
    EXPECT_EQ(parsed.first("//g").attribute("class").value(), read);
  }
}

TEST(SvgRenderer, PaintsColoursGradientsAndStrokes) {
  const LinearGradient light{{0, 1}, {2, 3}, {{0, {0xFFFFFF, 0.25}}, {1, {0x00000A}}}};
  const PathItem line{todaychord::line({0, 0}, {1, 1}), Color{0x2A004E, 0.5},
                      todaychord::Stroke{light, 2, 4, todaychord::LineCap::round}, 0.3};
  const PathItem circle{todaychord::circle({5, 5}, 2)};
  const TextItem text{
      "x", {"Space Grotesk Medium", 12}, TextAnchor::middle, {1, 2}, {0xFFFFFF, 0.85}};
  const ParsedSvg parsed(renderSvg({9, 9, "", "", {{line}, {circle}, {text}}}));
  const std::tuple<const char*, const char*, const char*> rows[] = {
      {"//path[1]", "d", "M0 0L1 1"},
      {"//path[1]", "fill", "#2A004E"},
      {"//path[1]", "fill-opacity", "0.5"},
      {"//path[1]", "stroke", "url(#gradient-1)"},
      {"//path[1]", "stroke-width", "2"},
      {"//path[1]", "stroke-miterlimit", "4"},
      {"//path[1]", "stroke-linecap", "round"},
      {"//path[1]", "opacity", "0.3"},
      {"//path[2]", "fill", "none"},
      {"//path[2]", "stroke", ""},
      {"//linearGradient", "gradientUnits", "userSpaceOnUse"},
      {"//linearGradient", "x2", "2"},
      {"//stop[1]", "stop-opacity", "0.25"},
      {"//stop[2]", "stop-color", "#00000A"},
      {"//text", "text-anchor", "middle"},
      {"//text", "font-weight", "500"},
  };
  for (const auto& [query, attribute, value] : rows) {
    EXPECT_STREQ(parsed.first(query).attribute(attribute).value(), value)
        << query << ' ' << attribute;
  }
}

TEST(SvgRenderer, WritesNumbersShortAndWithoutALocale) {
  std::setlocale(LC_ALL, "");
  const double infinity = std::numeric_limits<double>::infinity();
  const std::pair<double, const char*> rows[] = {{-0.0004, "0"},
                                                 {100, "100"},
                                                 {0.5, "0.5"},
                                                 {-3.33333, "-3.333"},
                                                 {1234567.8916, "1234567.892"},
                                                 {infinity, "0"},
                                                 {infinity - infinity, "0"},
                                                 {1e300, "1000000000"}};
  for (const auto& [number, text] : rows) {
    EXPECT_EQ(formatNumber(number), text);
  }
}

TEST(SvgRenderer, RaisesMusicSigns) {
  const std::pair<const char*, std::vector<TextSpan>> rows[] = {
      {"C major", {{"C major", 0}}},
      {"", {}},
      {"F♯m", {{"F", 0}, {"♯", -1.2}, {"m", 1.2}}},
      {"B♭♭/D", {{"B", 0}, {"♭♭", -0.2, 1.35}, {"/D", 0.2}}},
      {"♭5", {{"♭", -0.2, 1.35}, {"5", 0.2}}},
      {"F𝄪", {{"F", 0}, {"𝄪", -1.2}}}};
  for (const auto& [text, spans] : rows) {
    EXPECT_EQ(raiseMusicSigns(text, 10), spans) << text;
  }
}

// Line ends between the pieces of a line would be blanks in the picture.
TEST(SvgRenderer, KeepsALineInOnePiece) {
  const std::string text = "♭5 B♭♭ F♯";
  const std::string svg =
      renderSvg({9, 9, "", "", {{TextItem{text, {"font", 10}, TextAnchor::end, {}, {}}}}});
  const ParsedSvg parsed(svg);
  std::string read;
  for (const auto& piece : parsed.svg.select_nodes("/svg/text//text()")) {
    read += piece.node().value();
  }
  EXPECT_EQ(read, text) << svg;
  EXPECT_EQ(parsed.count("//tspan"), 5U);
}

TEST(SvgRenderer, DrawsIcons) {
  const ParsedSvg parsed(renderSvg(
      {9, 9, "", "", {{todaychord::ImageItem{"chevron.right", {0, 0, 48, 48}, {0xCC66DA}}}}}));
  const pugi::xml_node path = parsed.first("/svg/path");
  EXPECT_STREQ(path.attribute("d").value(), "M18 10L32 24L18 38");
  EXPECT_STREQ(path.attribute("stroke").value(), "#CC66DA");
  EXPECT_STREQ(path.attribute("stroke-linejoin").value(), "round");
}

}  // namespace
}  // namespace desktop
