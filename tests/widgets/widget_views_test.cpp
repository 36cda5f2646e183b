#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "TodayChordExtension/diagram/diagram_scene.h"
#include "TodayChordExtension/diagram/icons.h"
#include "TodayChordExtension/diagram/scene_placement.h"
#include "TodayChordExtension/widgets/collections_widget_view.h"
#include "TodayChordExtension/widgets/widget_palette.h"
#include "TodayChordExtension/widgets/widget_text.h"
#include "TodayChordExtension/widgets/widget_view.h"
#include "tests/support/chord_views.h"
#include "tests/support/contrast.h"
#include "tests/support/scene_lines.h"

namespace todaychord {
namespace {

using testing::Box;
using testing::boxOf;
using testing::cMajor;
using testing::collect;
using testing::describe;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using tonelake::Note;

const Chord longName{Note::Fs, "minor 7th flat 5", 0};
const Chord unknownType{Note::C, "?", 0};
const Chord unknownVariant{Note::C, "major", 7};
const std::string longTitle = "Wonderfully wide songs from the summer of 2025 and beyond";

WidgetCollectionItem itemCalled(const std::string& title) {
  return {"user-1", title, "Your collection", "acoustic", "square.stack.3d.up.fill", {}, true};
}

std::vector<WidgetEntry> entriesOfEveryKind() {
  std::vector<WidgetEntry> entries;
  for (const auto& chord :
       {std::optional(cMajor), std::optional(longName), std::optional(unknownType),
        std::optional(unknownVariant), std::optional<Chord>()}) {
    entries.emplace_back(ChordEntry{{}, chord});
    entries.emplace_back(LauncherEntry{{}, chord, ChordCategory::jazz});
  }
  const WidgetCollectionItem long1 = itemCalled(longTitle);
  const WidgetCollectionItem nasty = itemCalled("夏\xFF\n\"<&" + longTitle);
  for (std::size_t count = 0; count <= 9; ++count) {
    RecentChordsEntry recent{{}, std::vector<Chord>(count, unknownType)};
    if (count > 1) recent.chords[1] = longName;
    CollectionsEntry collections{{}, std::vector<WidgetCollectionItem>(count, long1)};
    if (count > 1) collections.collections[1] = nasty;
    if (count > 2) collections.collections[2] = itemCalled("");
    entries.emplace_back(recent);
    entries.emplace_back(collections);
  }
  return entries;
}

// Calls `check` with every entry in every family and hand.
template <typename Check>
void forEveryScene(Check check) {
  const std::vector<WidgetEntry> entries = entriesOfEveryKind();
  for (std::size_t i = 0; i < entries.size(); ++i) {
    for (const WidgetFamily family : WidgetFamily::allCases()) {
      for (const bool isLeftHanded : {false, true}) {
        SCOPED_TRACE("entry " + std::to_string(i) + ", " + std::string(family.rawValue()));
        check(entries[i], drawWidget(entries[i], family, {isLeftHanded}));
      }
    }
  }
}

Box boxOf(const Rectangle& frame) {
  return {frame.x, frame.y, frame.x + frame.width, frame.y + frame.height};
}

bool overlap(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

TEST(WidgetViews, KeepEverythingInsideTheWidgetAndItsCards) {
  forEveryScene([](const WidgetEntry&, const Scene& scene) {
    const Box whole{0, 0, scene.width, scene.height};
    const auto links = collect<LinkArea>(scene.items);
    const auto expectInside = [&](const Box& box, const std::string& what) {
      EXPECT_TRUE(whole.contains(box)) << what << ": " << describe(box);
      for (const LinkArea& link : links) {
        const Box card = boxOf(link.frame);
        EXPECT_TRUE(card.contains(box) || box.contains(card) || !overlap(card, box))
            << what << ": " << describe(box) << " crosses the edge of " << link.label;
      }
    };
    for (const auto& path : collect<PathItem>(scene.items)) expectInside(boxOf(path), "a path");
    for (const auto& text : collect<TextItem>(scene.items)) expectInside(boxOf(text), text.text);
    for (const auto& image : collect<ImageItem>(scene.items)) {
      expectInside(boxOf(image.frame), image.name);
      EXPECT_TRUE(hasIcon(image.name)) << image.name;
    }
    for (const LinkArea& link : links) expectInside(boxOf(link.frame), link.label);
  });
}

// No text runs into another one, nor into a diagram.
TEST(WidgetViews, KeepTextsApart) {
  forEveryScene([](const WidgetEntry&, const Scene& scene) {
    std::vector<std::pair<std::string, Box>> boxes;
    for (const SceneItem& item : scene.items) {
      if (const auto* text = std::get_if<TextItem>(&item.content)) {
        boxes.emplace_back(text->text, boxOf(*text));
      } else if (const auto* group = std::get_if<SceneGroup>(&item.content)) {
        Box box;
        for (const PathItem& path : collect<PathItem>(group->items)) box.unite(boxOf(path));
        boxes.emplace_back(group->name, box);
      }
    }
    for (std::size_t i = 0; i < boxes.size(); ++i) {
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_FALSE(overlap(boxes[i].second, boxes[j].second))
            << boxes[i].first << " and " << boxes[j].first;
      }
    }
  });
}

std::vector<std::string> linksOf(const Scene& scene) {
  std::vector<std::string> lines;
  for (const LinkArea& link : collect<LinkArea>(scene.items)) {
    lines.push_back(link.label + ": " + link.address);
  }
  return lines;
}

const std::string cLink = "zyndle://widget/chord?root=C&type=major&variant=0";

TEST(WidgetViews, LeadToWhatTheyShow) {
  const auto linksIn = [](const WidgetEntry& entry) {
    return linksOf(drawWidget(entry, WidgetFamily::small, {}));
  };
  EXPECT_THAT(linksIn(ChordEntry{{}, cMajor}),
              ElementsAre("Chord of the Day, C major. Learn More: " + cLink));
  EXPECT_THAT(linksIn(ChordEntry{{}, std::nullopt}),
              ElementsAre("Chord of the Day. Learn More: zyndle://widget/home"));
  EXPECT_THAT(linksIn(LauncherEntry{{}, longName, ChordCategory::jazz}),
              ElementsAre("Chord of the Day, F♯ minor 7th flat 5. Learn More: "
                          "zyndle://widget/chord?root=F%E2%99%AF&type=minor%207th%20flat%205"
                          "&variant=0",
                          "Tuner: zyndle://widget/tuner", "Metronome: zyndle://widget/metronome",
                          "Reverse Lookup: zyndle://widget/reverse-chord-finder",
                          "Scan Song: zyndle://widget/scan-song"));
  EXPECT_THAT(linksIn(RecentChordsEntry{{}, {cMajor, unknownType}}),
              ElementsAre("Search: zyndle://widget/search", "C major: " + cLink,
                          "Chord: zyndle://widget/chord?root=C&type=%3F&variant=0"));
  EXPECT_THAT(linksIn(CollectionsEntry{{}, {itemCalled("R&B"), itemCalled("")}}),
              ElementsAre("R&B: zyndle://widget/collection?title=R%26B",
                          "Your collection: zyndle://widget/collection?title=",
                          "View All Collections: zyndle://widget/collections"));
}

TEST(WidgetViews, ShowAsMuchOfTheTitleAsTheFamilyHolds) {
  const std::tuple<WidgetFamily, Chord, const char*> rows[] = {
      {WidgetFamily::small, cMajor, "C major"},
      {WidgetFamily::medium, cMajor, "C major"},
      {WidgetFamily::large, cMajor, "C major"},
      {WidgetFamily::extraLarge, cMajor, "C major"},
      {WidgetFamily::extraLargePortrait, cMajor, "C major"},
      {WidgetFamily::accessoryRectangular, cMajor, "C major"},
      {WidgetFamily::accessoryCircular, cMajor, "Cmaj"},
      {WidgetFamily::accessoryInline, cMajor, "Cmaj"},
      {WidgetFamily::small, {Note::D, "diminished", 0}, "Ddim"},
      {WidgetFamily::medium, {Note::D, "diminished", 0}, "D diminished"},
  };
  for (const auto& [family, chord, title] : rows) {
    std::vector<std::string> texts;
    const Scene scene = drawWidget(ChordEntry{{}, chord}, family, {});
    for (const TextItem& text : collect<TextItem>(scene.items)) texts.push_back(text.text);
    EXPECT_THAT(texts, ::testing::Contains(title)) << family.rawValue();
  }
}

// The diagram is that of the chord's first shape, mirrored or not, at the scale of the family.
TEST(WidgetViews, DrawTheFirstShapeForEitherHand) {
  const std::tuple<WidgetFamily, double, double, double> rows[] = {
      {WidgetFamily::small, 1.15, 85, 35}, {WidgetFamily::medium, 1.2, 270, 18.115}};
  for (const auto& [family, scale, middleX, top] : rows) {
    for (const bool isLeftHanded : {false, true}) {
      const Scene scene = drawWidget(ChordEntry{{}, cMajor}, family, {isLeftHanded});
      ChordView view = testing::openC();
      view.isLeftHanded = isLeftHanded;
      const auto drawn = collect<PathItem>(testing::itemsOf("diagram", scene.items));
      const Point origin{middleX - 68 * scale, top - 13.4 * scale};
      const auto expected =
          collect<PathItem>(placed(drawDiagram(view, 135 * scale).items, {origin}));
      ASSERT_EQ(drawn.size(), expected.size());
      for (std::size_t i = 0; i < drawn.size(); ++i) {
        SCOPED_TRACE(std::string(family.rawValue()) + (isLeftHanded ? ", left" : ", right"));
        EXPECT_NEAR(boxOf(drawn[i]).left, boxOf(expected[i]).left, 1e-6);
        EXPECT_NEAR(boxOf(drawn[i]).bottom, boxOf(expected[i]).bottom, 1e-6);
        EXPECT_EQ(drawn[i].fill.has_value(), expected[i].fill.has_value());
      }
      EXPECT_EQ(scene.description, drawDiagram(view, 135).description);
    }
  }
}

TEST(WidgetViews, ShowAnIconForAChordThatCannotBeShown) {
  for (const auto& chord :
       {std::optional(unknownType), std::optional(unknownVariant), std::optional<Chord>()}) {
    for (const WidgetFamily family : WidgetFamily::allCases()) {
      const Scene scene = drawWidget(ChordEntry{{}, chord}, family, {});
      EXPECT_THAT(collect<SceneGroup>(scene.items), IsEmpty());
      const auto images = collect<ImageItem>(scene.items);
      ASSERT_EQ(images.size(), 1U) << family.rawValue();
      EXPECT_EQ(images[0].name, "music.note.square.stack.fill");
      // On a home screen a text says why.
      const auto texts = collect<TextItem>(scene.items);
      const bool isSaid = std::any_of(texts.begin(), texts.end(),
                                      [](const TextItem& text) { return text.text == "No chord"; });
      EXPECT_EQ(isSaid, !family.rawValue().starts_with("accessory")) << family.rawValue();
    }
  }
}

TEST(WidgetViews, ChooseTheArtworkOfACollection) {
  const std::string stack = "square.stack.3d.up.fill";
  const std::tuple<std::optional<std::string>, std::optional<std::string>, const char*> rows[] = {
      {"acoustic", stack, "acoustic"},
      {"no such image", stack, "square.stack.3d.up.fill"},
      {"", stack, "square.stack.3d.up.fill"},
      {std::nullopt, std::nullopt, "music.note.square.stack.fill"},
      {std::nullopt, "no such icon", "music.note.square.stack.fill"},
  };
  for (const auto& [image, icon, name] : rows) {
    EXPECT_EQ((WidgetCollectionArtwork{image, icon, {}}.name()), name) << image.value_or("none");
  }
}

TEST(WidgetViews, SetLongLinesSmallerAndThenCutThem) {
  const TextStyle style{{regularFont, 20}, {}};
  const std::pair<const char*, const char*> rows[] = {
      {"C", "C"},
      {"", ""},
      {"Blues Chord", "Blues Chord"},
      {"Jazz Chords Collection", "Jazz Chord…"},
      {"Jazz Chord   and more", "Jazz Chord…"},
  };
  for (const auto& [text, shown] : rows) {
    const TextItem line = fitLine(text, style, {0, 0}, 110);
    EXPECT_EQ(line.text, shown);
    EXPECT_GE(line.font.size, 15);
    EXPECT_LE(boxOf(line).right, 110 + 1e-9) << text;
  }
  EXPECT_EQ(fitLine("C", style, {0, 0}, 110).font.size, 20);
}

// The ends of a gradient are its darkest and lightest places.
TEST(WidgetViews, HaveReadableColours) {
  namespace palette = widgetPalette;
  std::vector<std::pair<Color, Color>> rows{
      {palette::title, palette::home},
      {palette::accent, palette::home},
      {palette::subtitle, palette::home},
      {palette::accent, palette::large},
      {palette::title, palette::chordCell},
      {palette::heading, palette::toolCard},
      {palette::subtitle, palette::collectionCaption},
      {palette::buttonText, palette::button},
      {palette::heading, testing::over(palette::quietButton, palette::tall[0].color)},
  };
  for (const ColorStop& stop : palette::accessory) rows.emplace_back(palette::heading, stop.color);
  for (const ColorStop& stop : palette::tall) rows.emplace_back(palette::subtitle, stop.color);
  for (const ColorStop& stop : palette::chordCard) rows.emplace_back(palette::subtitle, stop.color);
  for (const auto& [text, back] : rows) {
    EXPECT_GE(testing::contrast(text, back), testing::readable)
        << describe(text) << " on " << describe(back);
  }
  // Icons are larger and need less; they stand in the middle of their gradient.
  const auto& card = palette::collectionCard;
  const Color middle = testing::over(card[0].color.withOpacity(0.5), card[1].color);
  EXPECT_GE(testing::contrast(palette::artwork, middle), 3);
}

TEST(WidgetViews, DrawTheChordInFull) {
  const auto drawn = [](WidgetFamily family) {
    return describe(drawWidget(ChordEntry{{}, cMajor}, family, {}).items);
  };
  EXPECT_EQ(drawn(WidgetFamily::accessoryCircular),
            R"(path 0 0 76 76 fill linear, #000023 1, #3E065F 1
path 3.5 3.5 72.5 72.5 stroke 1 #FFFFFF 0.5
text "Cmaj" SpaceGrotesk-SemiBold 12 middle 38 42.2 #FFFFFF 1
link 0 0 76 76 zyndle://widget/chord?root=C&type=major&variant=0 "Chord of the Day, C major. Learn More"
)");
  EXPECT_EQ(drawn(WidgetFamily::small),
            R"(path 0 0 170 170 fill #2A004E 1
text "C major" Space Grotesk Medium 17 middle 85 26 #FFFFFF 0.85
group diagram
link 0 0 170 170 zyndle://widget/chord?root=C&type=major&variant=0 "Chord of the Day, C major. Learn More"
)");
}

TEST(WidgetViews, DrawCollectionsInFull) {
  const CollectionsEntry entry{{}, {itemCalled("Warm-up")}};
  EXPECT_EQ(describe(drawWidget(entry, WidgetFamily::extraLargePortrait, {}).items),
            R"(path 0 0 382 715 fill linear, #020207 1, #0A0618 1, #150C27 1
text "Curated Chord Packs" SpaceGrotesk-SemiBold 21 start 20 38 #FFFFFF 1
text "Yours first, then ours" Space Grotesk Medium 13 start 20 57 #FFFFFF 0.66
path 20 74 362 205.2 fill linear, #CC66DA 1, #6D35B5 1
path 20 74 362 205.2 stroke 1 #FFFFFF 0.08
path 20 155.2 362 205.2 fill #1C1235 1
text "Warm-up" Space Grotesk Medium 13 start 32 177.2 #FFFFFF 1
text "Your collection" Space Grotesk Medium 11.5 start 32 193.2 #FFFFFF 0.66
image acoustic 168 91.62 46 46 #FFFFFF 1
link 20 74 342 131.2 zyndle://widget/collection?title=Warm-up "Warm-up"
path 20 647 362 695 fill #1C1235 1
path 20 647 362 695 stroke 1 #FFFFFF 0.08
text "View All Collections" Space Grotesk Medium 15 start 34 676.2 #FFFFFF 1
image chevron.right 330 662 18 18 #CC66DA 1
link 20 647 342 48 zyndle://widget/collections "View All Collections"
)");
}

}  // namespace
}  // namespace todaychord
