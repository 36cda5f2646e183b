#include "Tonelake/fingering/chord_positions_cache.h"

#include <utility>

#include "Tonelake/foundation/text.h"

namespace tonelake {

ChordPositionsCache& ChordPositionsCache::shared() {
  static ChordPositionsCache cache;
  return cache;
}

std::optional<std::vector<ChordPosition>> ChordPositionsCache::get(std::string_view key) const {
  const std::lock_guard lock(mutex_);
  const auto found = store_.find(std::string(key));
  return found == store_.end() ? std::nullopt : std::optional(found->second);
}

void ChordPositionsCache::set(std::vector<ChordPosition> positions, std::string_view key) {
  const std::lock_guard lock(mutex_);
  store_.insert_or_assign(std::string(key), std::move(positions));
}

std::string chordPositionsCacheKey(const Chord& chord, const TuningNames& tuning) {
  return std::string(chord.rootNote.rawValue()) + "-" + chord.chordType + "-" +
         std::to_string(chord.variant) + "-" + join(tuning, "");
}

}  // namespace tonelake
