#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace desktop {

/// What a character is printed with on a terminal that shows colours.
enum class Ink { plain, title, marker, note };

/// A rectangle of characters to draw on, every line exactly `width` columns wide.
class CharacterCanvas {
 public:
  CharacterCanvas(int width, int height);

  int width() const { return width_; }

  /// Draws one line of UTF-8 from a column on; what lies outside the canvas is dropped. Characters
  /// take one column each; control characters and broken bytes become "?".
  void draw(int column, int row, std::string_view text, Ink ink = Ink::plain);

  /// Draws a character in every column from `first` to `last`.
  void fill(int first, int last, int row, std::string_view character, Ink ink = Ink::plain);

  /// The lines, blanks at the ends included; with ANSI sequences for the inks if asked.
  std::vector<std::string> lines(bool color) const;

 private:
  struct Cell {
    std::string character = " ";
    Ink ink = Ink::plain;
  };

  int width_;
  int height_;
  std::vector<Cell> cells_;  // row by row
};

}  // namespace desktop
