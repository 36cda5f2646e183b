#include "Desktop/terminal_diagram.h"

#include <tuple>

#include <gtest/gtest.h>

#include "Desktop/ascii_text.h"
#include "Tonelake/foundation/text.h"
#include "tests/support/chord_views.h"

namespace desktop {
namespace {

using todaychord::ChordView;
using todaychord::testing::barreF;
using todaychord::testing::highDm;
using todaychord::testing::manyViews;
using todaychord::testing::openC;
using todaychord::testing::viewOf;

constexpr TerminalStyle box{};
constexpr TerminalStyle ascii{true, false};

// Pictures are compared from a line break on and without the blanks at the ends of lines.
std::string picture(const std::string& text) {
  std::string picture = "\n";
  for (const char character : text) {
    if (character == '\n') picture.erase(picture.find_last_not_of(' ') + 1);
    picture += character;
  }
  return picture;
}

std::string withoutColor(std::string text) {
  for (std::size_t at = 0; (at = text.find("\x1b[", at)) != std::string::npos;) {
    text.erase(at, text.find('m', at) + 1 - at);
  }
  return text;
}

TEST(TerminalDiagram, DrawsDiagramsSideBySide) {
  ChordView leftHanded = highDm();
  leftHanded.isLeftHanded = true;
  EXPECT_EQ(
      picture(terminalDiagrams(
          {{"C major", openC()}, {"133211", barreF()}, {"", highDm()}, {"left", leftHanded}}, box)),
      R"(
       C major            133211                            left
     ×     ○   ○                           ×                       ×
     ╒═╤═╤═╤═╤═╕        ╒═╤═╤═╤═╤═╕        ┌─┬─┬─┬─┬─┐   ┌─┬─┬─┬─┬─┐
     │ │ │ │ 1 │        1━━━━━━━1━1    5fr │ 1━━━━━━━1   1━━━━━━━1 │ 5fr
     ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤   ├─┼─┼─┼─┼─┤
     │ │ 2 │ │ │        │ │ │ 2 │ │        │ │ │ │ 2 │   │ 2 │ │ │ │
     ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤   ├─┼─┼─┼─┼─┤
     │ 3 │ │ │ │        │ 3 4 │ │ │        │ │ 3 4 │ │   │ │ 4 3 │ │
     ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤        ├─┼─┼─┼─┼─┤   ├─┼─┼─┼─┼─┤
     │ │ │ │ │ │        │ │ │ │ │ │        │ │ │ │ │ │   │ │ │ │ │ │
     └─┴─┴─┴─┴─┘        └─┴─┴─┴─┴─┘        └─┴─┴─┴─┴─┘   └─┴─┴─┴─┴─┘
)");
}

TEST(TerminalDiagram, DrawsInAsciiWithNotes) {
  ChordView view =
      viewOf({tonelake::Note::Fs, "major", 0}, {14, 16, 16, 15, 14, -1}, {1, 3, 3, 2, 1, 0});
  view.displayNotes = true;
  EXPECT_EQ(picture(terminalDiagrams({{"F♯ major", view}}, ascii)), R"(
         F# major
                    x
     +--+--+--+--+--+
14fr 1===========1  |
     |--+--+--+--+--|
     |  |  |  2  |  |
     |--+--+--+--+--|
     |  3==3  |  |  |
     |--+--+--+--+--|
     |  |  |  |  |  |
     +--+--+--+--+--+
     F# C# F# A# C#
)");
  view.displayNotes = false;
  view.displayFingering = false;
  EXPECT_EQ(terminalDiagram({"", view}, ascii)[2], "14fr *=======* |");
}

TEST(TerminalDiagram, KeepsItsWidth) {
  for (ChordView view : manyViews()) {
    for (const bool on : {false, true}) {
      view.displayNotes = on;
      view.isLeftHanded = on;
      for (const TerminalStyle& style : {box, ascii}) {
        const auto width = static_cast<std::size_t>(terminalDiagramWidth(view, style));
        const CaptionedDiagram diagram{"A caption that is longer than its diagram", view};
        const auto lines = terminalDiagram(diagram, style);
        const auto colored = terminalDiagram(diagram, {style.ascii, true});
        ASSERT_EQ(lines.size(), on ? 12U : 11U);
        ASSERT_EQ(colored.size(), lines.size());
        for (std::size_t i = 0; i < lines.size(); ++i) {
          EXPECT_EQ(tonelake::splitCharacters(lines[i]).size(), width) << lines[i];
          EXPECT_EQ(withoutColor(colored[i]), lines[i]);
        }
      }
    }
  }
}

// However many diagrams and columns: no line is too long unless one diagram alone is.
TEST(TerminalDiagram, FillsRowsWithinTheColumns) {
  const std::tuple<int, std::size_t, std::size_t> rows[] = {
      {80, 0, 0}, {73, 4, 10}, {72, 4, 21}, {16, 2, 21}, {-5, 1, 10}};
  for (const auto& [columns, diagramCount, lineCount] : rows) {
    const std::vector<CaptionedDiagram> diagrams(diagramCount, {"", openC()});
    const std::string text = terminalDiagrams(diagrams, box, columns);
    const auto lines = tonelake::split(text, '\n');
    EXPECT_EQ(lines.size() - 1, lineCount) << columns;
    for (const auto line : lines) {
      EXPECT_LE(tonelake::splitCharacters(line).size(),
                static_cast<std::size_t>(std::max(16, columns)));
    }
  }
}

// Fret 5 over fret 1 is in no row; it must not be drawn into the line of the notes.
TEST(TerminalDiagram, ShowsWhatFitsTheBoard) {
  ChordView view = viewOf(todaychord::testing::cMajor, {1, 5, -1, 0}, {1, 1, 1});
  view.displayNotes = true;
  const auto lines = terminalDiagram({"", view}, ascii);
  EXPECT_EQ(lines[0], "         x o    ");
  EXPECT_EQ(lines[1], "     ===========");
  EXPECT_EQ(lines[2], "     1== | | | |");
  EXPECT_EQ(lines.back(), "           G    ");
}

TEST(TerminalDiagram, KeepsControlCharactersFromTheTerminal) {
  const auto lines = terminalDiagram({"a\x1b[2J\n\xFF\xC2\x9Bz", openC()}, box);
  EXPECT_NE(lines[0].find("a?[2J???z"), std::string::npos) << lines[0];
}

TEST(TerminalDiagram, ColorsOnlyWhenAsked) {
  const auto lines = terminalDiagram({"", barreF()}, {false, true});
  EXPECT_EQ(lines[2], "     \x1b[1;35m1━━━━━━━1━1\x1b[0m");
  EXPECT_EQ(lines[3], "     ├─┼─┼─┼─┼─┤");
}

TEST(TerminalDiagram, HasAsciiForOurSigns) {
  EXPECT_EQ(toAscii("C♯ E♭ F𝄪 B𝄫 Æx·y…é\xFF"), "C# Eb F## Bbb Aex-y...e?");
}

}  // namespace
}  // namespace desktop
