#pragma once

#include <string>
#include <vector>

#include "Tonelake/foundation/whole_number.h"

namespace tonelake {

/// One chord type as its dictionary text has it.
struct ChordDefinition {
  std::string shortName;    ///< key "short", for example "maj7"
  std::string otherNames;   ///< key "other_names": separated by ",", blanks kept
  WholeNumbers notes;       ///< semitones above the root, 0 to 24, formula order; 14 is the ninth
  std::string formula;      ///< a scale degree for each note, joined by "-": "1-♭3-5-♭7"
  WholeNumber prefixSpace;  ///< key "prefix_space": 1 when a blank precedes the long type name
};

/// One chord type as the rest of the library reads it.
struct ChordData {
  std::string title;  ///< the key, for example "minor major 7th"
  std::string shortTitle;
  bool includesSpace = false;           ///< "C major" but "C9"
  std::vector<std::string> otherNames;  ///< may hold "" (a bare root means major)
  std::string formula;
  WholeNumbers notes;

  friend bool operator==(const ChordData&, const ChordData&) = default;
};

}  // namespace tonelake
