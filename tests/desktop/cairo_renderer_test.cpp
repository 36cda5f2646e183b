#include "Desktop/cairo_renderer.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <thread>
#include <tuple>

#include <cairo.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "Desktop/c_pointer.h"
#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/diagram/scene_shapes.h"
#include "tests/desktop/temporary_folder.h"
#include "tests/support/chord_views.h"
#include "tests/support/program_run.h"

namespace desktop {
namespace {

using ::testing::HasSubstr;
using todaychord::Color;
using todaychord::ImageItem;
using todaychord::LinearGradient;
using todaychord::LineCap;
using todaychord::LineJoin;
using todaychord::LineTo;
using todaychord::LinkArea;
using todaychord::MoveTo;
using todaychord::Path;
using todaychord::PathItem;
using todaychord::RadialGradient;
using todaychord::Rectangle;
using todaychord::Scene;
using todaychord::SceneGroup;
using todaychord::SceneItem;
using todaychord::Stroke;
using todaychord::TextAnchor;
using todaychord::TextItem;

// A PNG as another reader of the format sees it; Cairo multiplies colours by their opacity.
class Picture {
 public:
  explicit Picture(const std::string& png) {
    std::string_view rest = png;
    const auto read = [](void* source, unsigned char* data, unsigned int length) {
      auto& bytes = *static_cast<std::string_view*>(source);
      if (length > bytes.size()) return CAIRO_STATUS_READ_ERROR;
      std::memcpy(data, bytes.data(), length);
      bytes.remove_prefix(length);
      return CAIRO_STATUS_SUCCESS;
    };
    surface_.reset(cairo_image_surface_create_from_png_stream(read, &rest));
    EXPECT_EQ(cairo_surface_status(surface_.get()), CAIRO_STATUS_SUCCESS);
    EXPECT_TRUE(rest.empty());
  }

  int width() const { return cairo_image_surface_get_width(surface_.get()); }
  int height() const { return cairo_image_surface_get_height(surface_.get()); }

  std::uint32_t argb(int x, int y) const {
    const unsigned char* line = cairo_image_surface_get_data(surface_.get()) +
                                y * cairo_image_surface_get_stride(surface_.get());
    std::uint32_t pixel = 0;
    std::memcpy(&pixel, line + 4 * x, sizeof pixel);
    return pixel;
  }

  // Whatever is painted: from its first column to behind its last, and the rows likewise.
  Rectangle ink() const {
    int left = width();
    int right = 0;
    int top = height();
    int bottom = 0;
    for (int y = 0; y < height(); ++y) {
      for (int x = 0; x < width(); ++x) {
        if (argb(x, y) == 0) continue;
        left = std::min(left, x);
        right = std::max(right, x + 1);
        top = std::min(top, y);
        bottom = std::max(bottom, y + 1);
      }
    }
    return {double(left), double(top), double(right - left), double(bottom - top)};
  }

 private:
  CPointer<cairo_surface_t, cairo_surface_destroy> surface_;
};

Picture paint(const std::vector<SceneItem>& items, double scale = 1) {
  const RenderedPicture rendered = renderPng({40, 40, "", "", items}, scale);
  EXPECT_EQ(rendered.problem, "");
  return Picture(rendered.bytes);
}

TextItem textAt(const std::string& text, TextAnchor anchor = TextAnchor::start) {
  return {text, {"Space Grotesk Medium", 20}, anchor, {20, 30}, {0xFFFFFF}};
}

TEST(RenderPng, PaintsWhatASceneHolds) {
  const Color white{0xFFFFFF};
  const Path square = todaychord::roundedRectangle({10, 10, 20, 20}, {});
  const LinearGradient across{{10, 0}, {30, 0}, {{0, {0xFF0000}}, {1, {0x0000FF, 0}}}};
  const RadialGradient round{{20, 20}, 10, {{0, {0x00FF00}}, {1, {0xFF0000}}}};
  const Path corner{MoveTo{{10, 10}}, LineTo{{20, 10}}, LineTo{{20, 20}}};
  const Stroke round8{white, 8, 10, LineCap::butt, LineJoin::round};
  // Edge and fill are made transparent as one.
  const PathItem edged{square, white, Stroke{Color{0xFF0000}, 4}, 0.2};
  const LinearGradient still{{9, 9}, {9, 9}, across.stops};
  const RadialGradient dot{{9, 9}, 0, round.stops};
  const Stroke round4{white, 4, 10, LineCap::round};
  const ImageItem chevron{"chevron.right", {8, 8, 24, 24}, white};
  const TextItem sizeless{"█", {"", 0}, TextAnchor::middle, {20, 20}, white};
  const Path endless = todaychord::line({-1e300, 20}, {1e300, 20});
  const double none = std::numeric_limits<double>::quiet_NaN();
  struct Case {
    const char* what;
    int x;
    int y;
    std::uint32_t argb;
    SceneItem item;
  };
  // clang-format off
  const Case cases[] = {
      {"fill",                 10, 10, 0xFF123456, {PathItem{square, Color{0x123456}}}},
      {"outside of it",        30, 29, 0,          {PathItem{square, white}}},
      {"half a colour",        20, 20, 0x80800000, {PathItem{square, Color{0xFF0000, 0.5}}}},
      {"opacity",              20, 20, 0x33333333, {PathItem{square, white, {}, 0.2}}},
      {"edge over fill",       11, 20, 0x33330000, {edged}},
      {"fill under edge",      20, 20, 0x33333333, {edged}},
      {"begin of a gradient",  10, 20, 0xF9F20006, {PathItem{square, across}}},
      {"end of a gradient",    29, 20, 0x06000006, {PathItem{square, across}}},
      {"centre of a gradient", 20, 20, 0xFF12ED00, {PathItem{square, round}}},
      {"beyond its rim",       11, 11, 0xFFFF0000, {PathItem{square, round}}},
      {"no extent",            20, 20, 0,          {PathItem{square, still}}},
      {"no radius",            20, 20, 0xFFFF0000, {PathItem{square, dot}}},
      {"flat end",              9, 10, 0,          {PathItem{corner, {}, Stroke{white, 4}}}},
      {"round end",             9, 10, 0xFFFFFFFF, {PathItem{corner, {}, round4}}},
      {"mitred corner",        23,  6, 0xFFFFFFFF, {PathItem{corner, {}, Stroke{white, 8}}}},
      {"round corner's tip",   23,  6, 0,          {PathItem{corner, {}, round8}}},
      {"round corner",         21,  7, 0xFFFFFFFF, {PathItem{corner, {}, round8}}},
      {"cut corner",           22,  6, 0,          {PathItem{corner, {}, Stroke{white, 8, 1}}}},
      {"no width",             15, 10, 0,          {PathItem{corner, {}, Stroke{white, 0}}}},
      {"no number",            15, 10, 0,          {PathItem{corner, {}, Stroke{white, none}}}},
      {"far away",             20, 20, 0xFFFFFFFF, {PathItem{endless, {}, Stroke{white, 4}}}},
      {"group",                20, 20, 0xFFFFFFFF, {SceneGroup{"g", {{PathItem{square, white}}}}}},
      {"icon",                 23, 19, 0xFFFFFFFF, {chevron}},
      {"unknown image",        20, 20, 0,          {ImageItem{"no icon", {0, 0, 40, 40}, white}}},
      {"link",                 20, 20, 0,          {LinkArea{{0, 0, 40, 40}, "zyndle://", ""}}},
      {"text without size",    20, 20, 0,          {sizeless}},
  };
  // clang-format on
  for (const Case& each : cases) {
    const std::uint32_t found = paint({each.item}).argb(each.x, each.y);
    for (unsigned shift = 0; shift < 32; shift += 8) {
      EXPECT_NEAR(found >> shift & 0xFFU, each.argb >> shift & 0xFFU, 2)
          << each.what << std::hex << ": " << found;
    }
  }
}

TEST(RenderPng, HasTheSizeOfTheSceneTimesTheScale) {
  const std::tuple<double, double, double, int, int> rows[] = {
      {150, 192, 3, 450, 576}, {150, 30, 1.1, 165, 33}, {10.1, 10, 1, 11, 10}, {10, 3, 0.01, 1, 1}};
  for (const auto& [width, height, scale, pixelsWide, pixelsHigh] : rows) {
    const Picture picture(renderPng({width, height, "", "", {}}, scale).bytes);
    EXPECT_EQ(picture.width(), pixelsWide) << width << " at " << scale;
    EXPECT_EQ(picture.height(), pixelsHigh) << height << " at " << scale;
  }
}

TEST(RenderPng, RefusesWhatIsNoPicture) {
  const double none = std::numeric_limits<double>::quiet_NaN();
  const std::tuple<double, double, double, const char*> rows[] = {
      {10, 10, 0, "the scale is 0"},
      {10, 10, -1, "the scale is -1"},
      {10, 10, 101, "the scale is 101"},
      {10, 10, none, "the scale is not a number"},
      {0, 10, 1, "0 x 10 points"},
      {10, none, 1, "10 x 0 points"},
      {8001, 8000, 1, "8001 x 8000 pixels"},
      {400, 1, 100, "40000 x 100 pixels"},
      {1e300, 1e300, 1, "pixels is too large"}};
  for (const auto& [width, height, scale, problem] : rows) {
    const RenderedPicture rendered = renderPng({width, height, "", "", {}}, scale);
    EXPECT_THAT(rendered.problem, HasSubstr(problem));
    EXPECT_EQ(rendered.bytes, "");
  }
}

TEST(RenderPng, SetsTextsWhereTheyAreAnchored) {
  const Rectangle start = paint({{textAt("H")}}).ink();
  const Rectangle middle = paint({{textAt("H", TextAnchor::middle)}}).ink();
  const Rectangle end = paint({{textAt("H", TextAnchor::end)}}).ink();
  EXPECT_EQ(start.y + start.height, 30);  // stands on its baseline
  EXPECT_EQ(start.height, 14);            // capitals are 0.7 of the size
  EXPECT_NEAR(middle.x + middle.width / 2, 20, 1);
  EXPECT_NEAR(start.x - middle.x, middle.x - end.x, 1);
  EXPECT_GT(start.x, 20);
  EXPECT_LE(end.x + end.width, 20);
}

// A letter that no font holds is a box; what is meant to be invisible is.
TEST(RenderPng, ShowsTextsOfAllScripts) {
  for (const char* text : {"♯", "♭", "𝄪", "日本の歌", "Ж", "🎸", "\xFF", "\U0010FFFD"}) {
    EXPECT_GT(paint({{textAt(text, TextAnchor::middle)}}).ink().height, 3) << text;
  }
  for (const char* text : {"", " ", "\n", "\u200B\uFE0F"}) {
    EXPECT_LE(paint({{textAt(text, TextAnchor::middle)}}).ink().height, 0) << text;
  }
}

TEST(RenderPng, DrawsTheSamePictureOnEveryThread) {
  const Scene scene = drawDiagramCard(todaychord::testing::barreF(), "F♯ Жук", 150);
  std::vector<RenderedPicture> pictures(4);
  std::vector<std::thread> threads;
  threads.reserve(pictures.size());
  for (RenderedPicture& picture : pictures) {
    threads.emplace_back([&] { picture = renderPng(scene, 1); });
  }
  for (std::thread& thread : threads) thread.join();
  for (const RenderedPicture& picture : pictures) {
    EXPECT_EQ(picture.problem, "");
    EXPECT_EQ(picture.bytes, pictures.front().bytes);
  }
}

std::string textOf(const std::string& pdf) {
  const TemporaryFolder folder;
  const auto run = tonelake::testing::runProgram(
      {{PDFTOTEXT, "-enc", "UTF-8", folder.write("page.pdf", pdf), "-"}, {}, "", ""});
  EXPECT_EQ(run.status, 0) << run.errors;
  return run.output;
}

TEST(RenderPdf, HoldsTextsThatCanBeSelected) {
  Scene scene = drawDiagramCard(todaychord::testing::barreF(), "F♯ minor · Today's ﬁne 日本", 300);
  scene.title = "(F) \\ ♯ \xFF";
  const RenderedPicture rendered = renderPdf(scene);
  ASSERT_EQ(rendered.problem, "");
  const std::string text = textOf(rendered.bytes);
  EXPECT_THAT(text, HasSubstr("F♯ minor · Today's ﬁne 日本"));
  EXPECT_THAT(rendered.bytes, HasSubstr("/Title"));
  EXPECT_EQ(renderPdf(scene).bytes, rendered.bytes);
}

TEST(RenderPdf, LeadsToAddresses) {
  const SceneItem page{PathItem{todaychord::roundedRectangle({0, 0, 20, 10}, {}), Color{}}};
  for (const auto& [address, written] : std::vector<std::pair<std::string, std::string>>{
           {"zyndle://widget/chord?root=C&type=minor%207th&variant=0",
            "zyndle://widget/chord?root=C&type=minor%207th&variant=0"},
           {"zyndle://a (b)\\'c'é", "zyndle://a%20%28b%29%5C%27c%27%C3%A9"}}) {
    const RenderedPicture rendered =
        renderPdf({20, 10, "", "", {page, {LinkArea{{1, 2, 3, 4}, address, "label"}}}});
    EXPECT_EQ(rendered.problem, "") << address;
    EXPECT_THAT(rendered.bytes, HasSubstr("(" + written + ")"));
    EXPECT_THAT(rendered.bytes, HasSubstr("/Rect [ 1 4 4 8 ]"));
  }
  EXPECT_EQ(renderPdf({20, 10, "", "", {page, {LinkArea{{}, "", ""}}}}).problem, "");
}

TEST(RenderPdf, RefusesWhatIsNoPage) {
  for (const auto& [width, height] :
       std::vector<std::pair<double, double>>{{0, 10}, {10, -1}, {14401, 10}, {10, INFINITY}}) {
    const RenderedPicture rendered = renderPdf({width, height, "", "", {}});
    EXPECT_THAT(rendered.problem, HasSubstr(" points is ")) << width << " x " << height;
    EXPECT_EQ(rendered.bytes, "");
  }
}

}  // namespace
}  // namespace desktop
