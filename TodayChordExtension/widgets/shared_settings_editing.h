#pragma once

#include <optional>
#include <string>

#include "TodayChordExtension/widgets/widget_chord_collection.h"
#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

/// What a data value of the shared settings becomes, or why it must stay as it is.
struct SharedDataEdit {
  std::string data;     ///< what to store; "" where there is a problem
  std::string problem;  ///< for example "[3].rootNote: expected a text"; "" on success
};

// Each is given what its key holds, nothing where it holds nothing, and never drops anything that
// it does not understand: a damaged value is a problem, and keys of records that a newer app has
// added stay. A result that no widget would read for its size is a problem, too.

/// "recentlyViewedChords" after `chord` has been viewed: it leads, and leads only.
TONELAKE_API SharedDataEdit addRecentlyViewedChord(const std::optional<std::string>& data,
                                                   const Chord& chord);

/// "chordCollections" with one more collection at its end.
TONELAKE_API SharedDataEdit addChordCollection(const std::optional<std::string>& data,
                                               const WidgetChordCollection& collection);

}  // namespace todaychord
