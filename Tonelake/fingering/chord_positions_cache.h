#pragma once

#include <mutex>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Tonelake/chords/chord.h"
#include "Tonelake/fingering/chord_position.h"
#include "Tonelake/foundation/api.h"
#include "Tonelake/theory/tuning.h"

namespace tonelake {

/// Position lists in memory, by chord and tuning. One operation at a time: any thread may call.
/// Entries are never removed.
class TONELAKE_API ChordPositionsCache {
 public:
  /// The process's cache.
  static ChordPositionsCache& shared();

  /// What was set for a key; nothing where nothing was.
  std::optional<std::vector<ChordPosition>> get(std::string_view key) const;

  /// Replaces what was there.
  void set(std::vector<ChordPosition> positions, std::string_view key);

 private:
  mutable std::mutex mutex_;
  std::unordered_map<std::string, std::vector<ChordPosition>> store_;
};

/// The chord's key in the cache, for example "C-major-0-EADGBE".
TONELAKE_API std::string chordPositionsCacheKey(const Chord& chord, const TuningNames& tuning);

}  // namespace tonelake
