#pragma once

#include <string_view>

namespace desktop {

/// A horizontal line of the board: its left end, between strings, on a string, its right end.
struct BoardEdge {
  std::string_view left;
  std::string_view between;
  std::string_view crossing;
  std::string_view right;
};

/// What a chord diagram is drawn with on a terminal.
struct BoardCharacters {
  BoardEdge nut;
  BoardEdge top;
  BoardEdge fret;
  BoardEdge bottom;
  std::string_view string;
  std::string_view barre;
  std::string_view dot;
  std::string_view open;
  std::string_view muted;
  std::string_view ellipsis;
};

// clang-format off
inline constexpr BoardCharacters boxBoard{
    {"╒", "═", "╤", "╕"},
    {"┌", "─", "┬", "┐"},
    {"├", "─", "┼", "┤"},
    {"└", "─", "┴", "┘"},
    "│", "━", "●", "○", "×", "…"};

inline constexpr BoardCharacters asciiBoard{
    {"=", "=", "=", "="},
    {"+", "-", "+", "+"},
    {"|", "-", "+", "|"},
    {"+", "-", "+", "+"},
    "|", "=", "*", "o", "x", "..."};
// clang-format on

}  // namespace desktop
