#pragma once

#include <string>
#include <vector>

#include "TodayChordExtension/diagram/chord_view.h"

namespace desktop {

// Chord diagrams in characters: the strings upright, a double line for the nut or the first row's
// fret beside it, fingers as digits, barres as bars between them:
//
//        F major
//
//      ╒═╤═╤═╤═╤═╕
//      1━━━━━━━1━1
//      ├─┼─┼─┼─┼─┤
//      │ │ │ 2 │ │
//      ├─┼─┼─┼─┼─┤
//      │ 3━3 │ │ │
//      ├─┼─┼─┼─┼─┤
//      │ │ │ │ │ │
//      └─┴─┴─┴─┴─┘

struct TerminalStyle {
  bool ascii = false;  ///< nothing but ASCII
  bool color = false;  ///< ANSI sequences for colours
};

struct CaptionedDiagram {
  std::string caption;  ///< one line above the diagram, cut off where it is too long
  todaychord::ChordView view;
};

/// Columns that a diagram takes: 16, more where it shows notes that are not single letters.
int terminalDiagramWidth(const todaychord::ChordView& view, const TerminalStyle& style);

/// The lines of a diagram, each exactly that many columns wide, colours not counted. An empty
/// caption takes no line; note names take one where the view shows them.
std::vector<std::string> terminalDiagram(const CaptionedDiagram& diagram,
                                         const TerminalStyle& style);

/// Diagrams side by side, as many a row as fit into `columns` but at least one, an empty line
/// between the rows. Every line ends in "\n"; the lines of a row are equally wide.
std::string terminalDiagrams(const std::vector<CaptionedDiagram>& diagrams,
                             const TerminalStyle& style, int columns = 80);

}  // namespace desktop
