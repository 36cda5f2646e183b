#pragma once

#include <string>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/json.h"

namespace zyndle {

/// What the commands tell about a chord besides its shapes.
struct ChordSheet {
  tonelake::Chord chord;
  std::string title;
  std::string shortTitle;
  std::vector<std::string> names;      ///< all but the title, the shortest first
  std::vector<std::string> notes;      ///< root first
  std::vector<std::string> intervals;  ///< bass first
};

/// The sheet of a chord that can be shown.
ChordSheet makeChordSheet(const tonelake::Chord& chord);

/// The sheet of a chord of the day, whose intervals name the root "Root".
ChordSheet makeChordSheetForToday(const tonelake::Chord& chord);

/// The keys "chord", "title", "shortTitle", "notes" and "intervals" in this order, added to
/// `object`. Scripts read them: do not change.
void addChordSheet(tonelake::json::Value& object, const ChordSheet& sheet);

/// The sentences that say how to hold a shape.
std::vector<std::string> instructionsFor(const tonelake::ChordPosition& position);

/// The same below each other for a terminal; "" when there are none.
std::string listInstructions(const tonelake::ChordPosition& position);

}  // namespace zyndle
