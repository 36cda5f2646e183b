#include "Desktop/terminal_diagram.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "Desktop/ascii_text.h"
#include "Desktop/board_characters.h"
#include "Desktop/character_canvas.h"
#include "TodayChordExtension/diagram/diagram_layout.h"
#include "TodayChordExtension/diagram/diagram_places.h"
#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

using todaychord::ChordView;
using todaychord::DiagramLayout;
using todaychord::WholeNumber;
namespace metrics = todaychord::metrics;

// Columns and lines of a diagram.
constexpr int baseFretColumns = 4;  // "12fr"
constexpr int besideColumns = baseFretColumns + 1;
constexpr int tightPitch = 2;      // columns from string to string
constexpr int linesPerFret = 2;    // its row and the line below it
constexpr int columnsBetween = 3;  // between diagrams side by side
constexpr int marksAndTopEdge = 2;

std::string write(const std::string& text, const TerminalStyle& style) {
  return style.ascii ? toAscii(text) : text;
}

std::string blanks(int count) {
  return std::string(static_cast<std::size_t>(count), ' ');
}

int length(std::string_view text) {
  return static_cast<int>(tonelake::splitCharacters(text).size());
}

// Two columns from string to string, and more where note names would touch.
int stringPitch(const DiagramLayout& layout, const TerminalStyle& style) {
  int longest = 0;
  for (const todaychord::NoteLabel& label : layout.noteLabels) {
    longest = std::max(longest, length(write(label.note, style)));
  }
  return std::max(tightPitch, longest + 1);
}

int diagramWidth(int pitch) {
  // A note name begins under its string and is up to pitch - 1 columns long.
  const int afterLastString = pitch - tightPitch;
  return besideColumns + pitch * (metrics::stringCount - 1) + 1 + afterLastString;
}

DiagramLayout layOut(const ChordView& view) {
  return todaychord::layOutDiagram(view, metrics::designWidth);
}

// Draws one diagram; lines are counted from the marks above the nut.
class DiagramDrawing {
 public:
  DiagramDrawing(const CaptionedDiagram& diagram, const TerminalStyle& style)
      : diagram_(diagram),
        view_(diagram.view),
        style_(style),
        characters_(style.ascii ? asciiBoard : boxBoard),
        layout_(layOut(diagram.view)),
        pitch_(stringPitch(layout_, style)),
        firstString_(view_.isLeftHanded ? 0 : besideColumns),
        firstLine_(diagram.caption.empty() ? 0 : 1),
        canvas_(diagramWidth(pitch_), firstLine_ + marksAndTopEdge +
                                          linesPerFret * metrics::fretRows +
                                          (view_.displayNotes ? 1 : 0)) {}

  std::vector<std::string> draw() {
    drawCaption();
    drawBoard();
    drawBaseFret();
    drawMarks();
    drawBarres();
    drawDots();
    drawNotes();
    return canvas_.lines(style_.color);
  }

 private:
  int column(int string) const { return firstString_ + pitch_ * string; }
  int topEdge() const { return firstLine_ + 1; }
  int rowLine(int row) const { return topEdge() + 1 + linesPerFret * (row - 1); }

  // Over the middle of the board, as far as there is room.
  void drawCaption() {
    std::string caption = write(diagram_.caption, style_);
    if (length(caption) > canvas_.width()) {
      const int kept = canvas_.width() - length(characters_.ellipsis);
      const auto characters = tonelake::splitCharacters(caption);
      caption.resize(static_cast<std::size_t>(characters[static_cast<std::size_t>(kept)].data() -
                                              caption.data()));
      caption += characters_.ellipsis;
    }
    const int middle = (column(0) + column(metrics::stringCount - 1) + 1) / 2;
    const int room = canvas_.width() - length(caption);
    canvas_.draw(std::clamp(middle - length(caption) / 2, 0, room), 0, caption, Ink::title);
  }

  void drawEdge(int line, const BoardEdge& edge) {
    const int last = metrics::stringCount - 1;
    canvas_.fill(column(0), column(last), line, edge.between);
    for (int string = 1; string < last; ++string) canvas_.draw(column(string), line, edge.crossing);
    canvas_.draw(column(0), line, edge.left);
    canvas_.draw(column(last), line, edge.right);
  }

  void drawBoard() {
    drawEdge(topEdge(), layout_.baseFret == 1 ? characters_.nut : characters_.top);
    for (int row = 1; row <= metrics::fretRows; ++row) {
      for (int string = 0; string < metrics::stringCount; ++string) {
        canvas_.draw(column(string), rowLine(row), characters_.string);
      }
      drawEdge(rowLine(row) + 1, row < metrics::fretRows ? characters_.fret : characters_.bottom);
    }
  }

  void drawBaseFret() {
    if (layout_.baseFret == 1) return;
    const std::string text = std::to_string(layout_.baseFret) + "fr";
    const int start = view_.isLeftHanded ? column(metrics::stringCount - 1) + 2
                                         : std::max(0, baseFretColumns - length(text));
    canvas_.draw(start, rowLine(1), text, Ink::note);
  }

  void drawMarks() {
    for (int string = 0; string < metrics::stringCount; ++string) {
      const auto i = static_cast<std::size_t>(string);
      if (i >= layout_.displayedFrets.size()) break;
      const WholeNumber row = layout_.displayedFrets[i];
      if (row > 0 || row == todaychord::noRow) continue;
      canvas_.draw(column(string), firstLine_, row == 0 ? characters_.open : characters_.muted);
    }
  }

  void drawBarres() {
    for (const todaychord::BarreSegment& barre : layout_.barres) {
      if (!todaychord::isOnBoard(barre.endStringIndex, barre.fret)) continue;
      canvas_.fill(column(barre.startStringIndex), column(barre.endStringIndex),
                   rowLine(static_cast<int>(barre.fret)), characters_.barre, Ink::marker);
    }
  }

  void drawDots() {
    for (const todaychord::FingerDot& dot : layout_.dots) {
      const WholeNumber row = layout_.displayedFrets[static_cast<std::size_t>(dot.stringIndex)];
      if (!todaychord::isOnBoard(dot.stringIndex, row)) continue;
      const bool hasNumber = view_.displayFingering && dot.finger >= 1 && dot.finger <= 4;
      canvas_.draw(column(dot.stringIndex), rowLine(static_cast<int>(row)),
                   hasNumber ? std::to_string(dot.finger) : std::string(characters_.dot),
                   Ink::marker);
    }
  }

  void drawNotes() {
    for (const todaychord::NoteLabel& label : layout_.noteLabels) {
      canvas_.draw(column(label.stringIndex), rowLine(metrics::fretRows) + 2,
                   write(label.note, style_), Ink::note);
    }
  }

  const CaptionedDiagram& diagram_;
  const ChordView& view_;
  const TerminalStyle& style_;
  const BoardCharacters& characters_;
  DiagramLayout layout_;
  int pitch_;
  int firstString_;
  int firstLine_;
  CharacterCanvas canvas_;
};

// A diagram's lines, padded with blanks to a width.
struct Block {
  std::vector<std::string> lines;
  std::string padding;
};

// Diagrams that stand side by side, each in `width` columns. Their boards begin on the same line.
std::string drawRow(std::span<const CaptionedDiagram> diagrams, const TerminalStyle& style,
                    int width) {
  const bool hasCaptions = std::any_of(diagrams.begin(), diagrams.end(),
                                       [](const auto& each) { return !each.caption.empty(); });
  std::vector<Block> blocks;
  std::size_t height = 0;
  for (CaptionedDiagram diagram : diagrams) {
    if (hasCaptions && diagram.caption.empty()) diagram.caption = " ";
    const int missing = width - terminalDiagramWidth(diagram.view, style);
    blocks.push_back({terminalDiagram(diagram, style), blanks(missing)});
    height = std::max(height, blocks.back().lines.size());
  }
  std::string text;
  for (std::size_t line = 0; line < height; ++line) {
    for (const Block& block : blocks) {
      if (&block != &blocks.front()) text += blanks(columnsBetween);
      text += line < block.lines.size() ? block.lines[line] + block.padding : blanks(width);
    }
    text += '\n';
  }
  return text;
}

}  // namespace

int terminalDiagramWidth(const ChordView& view, const TerminalStyle& style) {
  return diagramWidth(stringPitch(layOut(view), style));
}

std::vector<std::string> terminalDiagram(const CaptionedDiagram& diagram,
                                         const TerminalStyle& style) {
  return DiagramDrawing(diagram, style).draw();
}

std::string terminalDiagrams(const std::vector<CaptionedDiagram>& diagrams,
                             const TerminalStyle& style, int columns) {
  int width = 0;
  for (const CaptionedDiagram& diagram : diagrams) {
    width = std::max(width, terminalDiagramWidth(diagram.view, style));
  }
  const int fitting = (columns + columnsBetween) / (width + columnsBetween);
  const auto perRow = static_cast<std::size_t>(std::max(1, fitting));
  std::string text;
  for (std::size_t first = 0; first < diagrams.size(); first += perRow) {
    if (first > 0) text += '\n';
    const std::size_t count = std::min(perRow, diagrams.size() - first);
    text += drawRow(std::span(diagrams).subspan(first, count), style, width);
  }
  return text;
}

}  // namespace desktop
