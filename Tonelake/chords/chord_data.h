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
  std::string title;                    ///< the key, for example "minor major 7th"
  std::string shortTitle;               ///< for example "min/maj7"
  bool includesSpace = false;           ///< "C major" but "C9"
  std::vector<std::string> otherNames;  ///< may hold "" (a bare root means major)
  std::string formula;  ///< scale degrees joined by "-", for example "1-♭3-5-♭7"
  WholeNumbers notes;   ///< semitones above the root, formula order; 14 is the ninth

  friend bool operator==(const ChordData&, const ChordData&) = default;
};

}  // namespace tonelake
