#pragma once

#include <limits>
#include <string>
#include <vector>

#include "TodayChordExtension/diagram/chord_view.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

// Lengths are design units; string indexes count in display order from the left, 0 to 5.

/// What a dot stands for; strings that share one are held by the same finger.
struct FretFinger1 {
  WholeNumber fret = 0;    ///< the row that is displayed, from 1
  WholeNumber finger = 0;  ///< 1 index to 4 little

  friend auto operator<=>(const FretFinger1&, const FretFinger1&) = default;
};

/// A finger on a string. Its centre is given in the marker layer, whose origin lies at (6.5, 6.5)
/// of the view.
struct FingerDot {
  int stringIndex = 0;      ///< 0 the leftmost
  double x = 0;             ///< 26.5 on the leftmost string, 14 more on each further
  double y = 0;             ///< 36 in the middle of row 1, 23 more in each further
  WholeNumber finger = -1;  ///< -1 or 0 where no finger is known

  friend bool operator==(const FingerDot&, const FingerDot&) = default;
};

/// A bar between two strings that one finger holds; anchor and width as the diagram defines them.
struct BarreSegment {
  int startStringIndex = 0;  ///< the left end, where the bar is anchored
  int endStringIndex = 0;    ///< the right end
  WholeNumber fret = 0;      ///< displayed row of the first string
  double x = 0;              ///< of the anchor
  double y = 0;              ///< of the anchor
  double width = 0;          ///< 14 from each string to the next

  friend bool operator==(const BarreSegment&, const BarreSegment&) = default;
};

/// The name of a sounding string's note, spelled as the chord spells it; "" when it is no chord
/// tone. Its centre is given in view space.
struct NoteLabel {
  int stringIndex = 0;  ///< 0 the leftmost
  std::string note;     ///< sharps and flats as signs: "E♭"
  double x = 0;         ///< view space
  double y = 0;         ///< view space

  /// Tells the labels of one diagram apart.
  int id() const { return stringIndex; }

  friend bool operator==(const NoteLabel&, const NoteLabel&) = default;
};

/// In place of a row, for a string that a left-handed view has no fret for: nothing is drawn there.
inline constexpr WholeNumber noRow = std::numeric_limits<WholeNumber>::min();

/// Where everything that depends on the fingering lies.
struct DiagramLayout {
  double scale = 1;                   ///< pixels per design unit
  WholeNumber baseFret = 1;           ///< fret of row 1
  WholeNumbers displayedFrets;        ///< row per string in display order; -1 muted, 0 open, noRow
  std::vector<FingerDot> dots;        ///< one for each pressed string
  std::vector<BarreSegment> barres;   ///< each from one string of a finger to its next
  std::vector<NoteLabel> noteLabels;  ///< none unless the view displays notes
};

/// Pixels per design unit in a view `width` wide, never below 0.5.
TONELAKE_API double diagramScale(double width);

/// The layout of a view `width` wide. Lists that do not hold six values place what they have, from
/// the lowest string on.
TONELAKE_API DiagramLayout layOutDiagram(const ChordView& view, double width);

}  // namespace todaychord
