#include "Desktop/character_canvas.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "Tonelake/foundation/text.h"

namespace desktop {
namespace {

// ANSI sequences by Ink. Colours of the palette that every terminal has, so that the user's own
// theme decides how they look.
constexpr std::array<std::string_view, 4> inkSequences{"\x1b[0m", "\x1b[1m", "\x1b[1;35m",
                                                       "\x1b[36m"};

std::string_view sequenceOf(Ink ink) {
  return inkSequences[static_cast<std::size_t>(ink)];
}

// A stray byte or an escape character must not reach the terminal.
std::string_view printable(std::string_view character) {
  return tonelake::isPrintable(character) ? character : "?";
}

}  // namespace

CharacterCanvas::CharacterCanvas(int width, int height)
    : width_(std::max(0, width)),
      height_(std::max(0, height)),
      cells_(static_cast<std::size_t>(width_) * static_cast<std::size_t>(height_)) {}

void CharacterCanvas::draw(int column, int row, std::string_view text, Ink ink) {
  for (const std::string_view character : tonelake::splitCharacters(text)) {
    fill(column, column, row, character, ink);
    ++column;
  }
}

void CharacterCanvas::fill(int first, int last, int row, std::string_view character, Ink ink) {
  if (row < 0 || row >= height_) return;
  for (int column = std::max(0, first); column <= std::min(last, width_ - 1); ++column) {
    cells_[static_cast<std::size_t>(row) * static_cast<std::size_t>(width_) +
           static_cast<std::size_t>(column)] = {std::string(printable(character)), ink};
  }
}

std::vector<std::string> CharacterCanvas::lines(bool color) const {
  std::vector<std::string> lines;
  auto cell = cells_.begin();
  for (int row = 0; row < height_; ++row) {
    std::string line;
    Ink ink = Ink::plain;
    for (int column = 0; column < width_; ++column, ++cell) {
      // Blanks show no ink: changing it for them would only lengthen the line.
      if (color && cell->ink != ink && cell->character != " ") {
        if (ink != Ink::plain) line += sequenceOf(Ink::plain);
        ink = cell->ink;
        if (ink != Ink::plain) line += sequenceOf(ink);
      }
      line += cell->character;
    }
    if (ink != Ink::plain) line += sequenceOf(Ink::plain);
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace desktop
