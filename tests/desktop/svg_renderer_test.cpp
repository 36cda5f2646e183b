#include "Desktop/svg_renderer.h"

#include <clocale>
#include <limits>
#include <set>

#include <gtest/gtest.h>
#include <pugixml.hpp>

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
  EXPECT_STREQ(parsed.svg.attribute("aria-describedby").value(),
               parsed.first("//desc").attribute("id").value());
  using todaychord::testing::collect;
  EXPECT_EQ(parsed.count("//path"), collect<PathItem>(scene.items).size());
  EXPECT_EQ(parsed.count("//text"), collect<TextItem>(scene.items).size());
  EXPECT_EQ(parsed.count("//g"), collect<SceneGroup>(scene.items).size());
  EXPECT_EQ(parsed.count("//g[@class='string-3']"), 1U);
}

TEST(SvgRenderer, DefinesEachGradientOnce) {
  const ParsedSvg parsed(renderSvg(drawDiagram(todaychord::testing::barreF(), 135), "f-"));
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
  for (const std::string& id : ids) EXPECT_EQ(id.substr(0, 2), "f-");
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
  struct Case {
    std::string text;
    std::string read;  // what a parser gets
  };
  const std::string unknown = "\xEF\xBF\xBD";
  const std::vector<Case> cases{
      {"</text><script>alert('1')</script>", "</text><script>alert('1')</script>"},
      {"]]> & &amp; \"'", "]]> & &amp; \"'"},
      {std::string("nul\0byte", 8), "nul" + unknown + "byte"},
      {"bell\a escape\x1b", "bell" + unknown + " escape" + unknown},
      {"\xFF\xC3", unknown + unknown},
      {"\xED\xA0\x80", unknown + unknown + unknown},  // a surrogate
      {"\xEF\xBF\xBE", unknown},                      // U+FFFE
      {"  two  blanks ", "  two  blanks "},
      {"日本 𝄞", "日本 𝄞"},
  };
  for (const Case& each : cases) {
    const ParsedSvg parsed(renderSvg(
        {9,
         9,
         each.text,
         each.text,
         {{SceneGroup{each.text,
                      {{TextItem{each.text, {each.text, 10}, TextAnchor::end, {}, {}}}}}}}}));
    ASSERT_TRUE(parsed.result) << each.text;
    for (const char* query : {"//title", "//desc", "//text"}) {
      EXPECT_EQ(parsed.first(query).text().get(), each.read) << query;
    }
    EXPECT_EQ(parsed.first("//g").attribute("class").value(), each.read);
  }
}

TEST(SvgRenderer, PaintsColoursGradientsAndStrokes) {
  const LinearGradient light{{0, 1}, {2, 3}, {{0, {0xFFFFFF, 0.25}}, {1, {0x00000A}}}};
  const ParsedSvg parsed(renderSvg(
      {9,
       9,
       "",
       "",
       {{PathItem{todaychord::line({0, 0}, {1, 1}), Color{0x2A004E, 0.5},
                  todaychord::Stroke{light, 2, 4, todaychord::LineCap::round}, 0.3}},
        {PathItem{todaychord::circle({5, 5}, 2)}},
        {TextItem{
            "x", {"Space Grotesk Medium", 12}, TextAnchor::middle, {1, 2}, {0xFFFFFF, 0.85}}}}}));
  const pugi::xml_node line = parsed.first("//path[1]");
  for (const auto& [name, value] :
       std::vector<std::pair<const char*, const char*>>{{"d", "M0 0L1 1"},
                                                        {"fill", "#2A004E"},
                                                        {"fill-opacity", "0.5"},
                                                        {"stroke", "url(#gradient-1)"},
                                                        {"stroke-width", "2"},
                                                        {"stroke-miterlimit", "4"},
                                                        {"stroke-linecap", "round"},
                                                        {"opacity", "0.3"}}) {
    EXPECT_STREQ(line.attribute(name).value(), value) << name;
  }
  const pugi::xml_node circle = parsed.first("//path[2]");
  EXPECT_STREQ(circle.attribute("fill").value(), "none");
  EXPECT_FALSE(circle.attribute("stroke"));
  const pugi::xml_node gradient = parsed.first("//linearGradient");
  EXPECT_STREQ(gradient.attribute("gradientUnits").value(), "userSpaceOnUse");
  EXPECT_STREQ(gradient.attribute("x2").value(), "2");
  EXPECT_STREQ(parsed.first("//stop[1]").attribute("stop-opacity").value(), "0.25");
  EXPECT_STREQ(parsed.first("//stop[2]").attribute("stop-color").value(), "#00000A");
  const pugi::xml_node text = parsed.first("//text");
  EXPECT_STREQ(text.attribute("text-anchor").value(), "middle");
  EXPECT_STREQ(text.attribute("font-weight").value(), "500");
  EXPECT_EQ(std::string(text.attribute("font-family").value()).find("'Space Grotesk', "), 0U);
}

TEST(SvgText, WritesNumbersShortAndWithoutALocale) {
  std::setlocale(LC_ALL, "");
  const double infinity = std::numeric_limits<double>::infinity();
  for (const auto& [number, text] :
       std::vector<std::pair<double, std::string>>{{0, "0"},
                                                   {-0.0, "0"},
                                                   {-0.0004, "0"},
                                                   {12, "12"},
                                                   {100, "100"},
                                                   {0.5, "0.5"},
                                                   {-3.33333, "-3.333"},
                                                   {1234567.8916, "1234567.892"},
                                                   {infinity, "0"},
                                                   {-infinity, "0"},
                                                   {std::numeric_limits<double>::quiet_NaN(), "0"},
                                                   {1e300, "1000000000"}}) {
    EXPECT_EQ(formatNumber(number), text);
  }
}

TEST(SvgText, RaisesMusicSigns) {
  struct Case {
    std::string text;
    std::vector<TextSpan> spans;
  };
  for (const Case& each : std::vector<Case>{{"C major", {{"C major", 0}}},
                                            {"", {}},
                                            {"F♯m", {{"F", 0}, {"♯", -1.2}, {"m", 1.2}}},
                                            {"B♭♭/D", {{"B", 0}, {"♭♭", -1.2}, {"/D", 1.2}}},
                                            {"♭5", {{"♭", -1.2}, {"5", 1.2}}},
                                            {"F𝄪", {{"F", 0}, {"𝄪", -1.2}}}}) {
    EXPECT_EQ(raiseMusicSigns(each.text, 10), each.spans) << each.text;
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
