#pragma once

#include <future>
#include <optional>
#include <stop_token>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_engine.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/fingering/chord_positions_cache.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// Which of a chord's positions to show. Frets as in ChordPosition::position, empty when absent.
struct PositionRequest {
  Chord chord{};  ///< what is to be played
  WholeNumbers
      selectedPosition{};         ///< what the user last chose: found again, or the first position
  WholeNumbers presetPosition{};  ///< found again, or the nearest; all muted counts as absent
  bool usesChordPositionsCache = false;  ///< asks and fills ChordPositionsCache, if `tuning` is one
  TuningNames tuning = Tuning::standard;  ///< six names, lowest first
};

/// The choice itself, on the caller's thread. Cancellation is checked right after generating and
/// gives nothing, as does a chord without positions.
TONELAKE_API std::optional<ChordPosition> choosePosition(const PositionRequest& request,
                                                         const ChordEngine& engine,
                                                         ChordPositionsCache& cache,
                                                         const std::stop_token& stop = {});

namespace Chords {

/// The choice made on a background thread of low priority. The future's destructor waits for it.
TONELAKE_API std::future<std::optional<ChordPosition>> resolveChordPosition(
    PositionRequest request, std::stop_token stop = {});

}  // namespace Chords
}  // namespace tonelake
