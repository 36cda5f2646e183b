#include "Tonelake/fingering/position_resolution.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "Tonelake/fingering/chord_positions.h"
#include "Tonelake/platform/platform.h"
#include "Tonelake/theory/spelling_tables.h"

namespace tonelake {
namespace {

using Positions = std::vector<ChordPosition>;

// The key of the cache runs the names of the strings together: only those of a tuning may ask, or
// {"EADGBE"} would get the shapes of the standard one.
bool isTuning(const TuningNames& names) {
  return names.size() == Tuning::stringCount &&
         std::all_of(names.begin(), names.end(),
                     [](const std::string& name) { return pitchClassNamed(name).has_value(); });
}

// Two threads that miss at once both generate, and the later list stays: they are the same. An
// unknown chord has no positions, which is not worth a place.
Positions cachedPositions(const PositionRequest& request, const ChordEngine& engine,
                          ChordPositionsCache& cache) {
  const std::string key = chordPositionsCacheKey(request.chord, request.tuning);
  if (auto cached = cache.get(key)) return *std::move(cached);
  Positions positions = Chords::getChordPositions(request.chord, -1, request.tuning, engine);
  if (!positions.empty()) cache.set(positions, key);
  return positions;
}

const ChordPosition* findPosition(const Positions& positions, const WholeNumbers& frets) {
  const auto found = std::find_if(
      positions.begin(), positions.end(),
      [&](const ChordPosition& candidate) { return candidate.position.equals(frets); });
  return found == positions.end() ? nullptr : &*found;
}

// The summed fret distance over the preset's sounding strings; the largest number when the
// candidate mutes one of them, so that such a shape loses to every other.
std::uint64_t distance(const ChordPosition& candidate, const WholeNumbers& preset) {
  constexpr auto farthest = std::numeric_limits<std::uint64_t>::max();
  std::uint64_t sum = 0;
  const std::size_t size = std::min(preset.size(), candidate.position.size());
  for (std::size_t i = 0; i < size; ++i) {
    if (preset[i] == mutedString) continue;
    const WholeNumber fret = candidate.position[i];
    if (fret == mutedString) return farthest;
    // Unsigned, so that no preset from outside can overflow; six distances may still wrap, hence
    // the bound.
    const auto step =
        fret > preset[i] ? static_cast<std::uint64_t>(fret) - static_cast<std::uint64_t>(preset[i])
                         : static_cast<std::uint64_t>(preset[i]) - static_cast<std::uint64_t>(fret);
    sum += std::min(step, farthest / 8);
  }
  return sum;
}

const ChordPosition& nearestPosition(const Positions& positions, const WholeNumbers& preset) {
  // min_element keeps the earlier of two that are equally near.
  return *std::min_element(positions.begin(), positions.end(),
                           [&](const ChordPosition& a, const ChordPosition& b) {
                             return distance(a, preset) < distance(b, preset);
                           });
}

bool hasSoundingString(const WholeNumbers& frets) {
  return std::any_of(frets.begin(), frets.end(),
                     [](WholeNumber fret) { return fret != mutedString; });
}

}  // namespace

std::optional<ChordPosition> choosePosition(const PositionRequest& request,
                                            const ChordEngine& engine, ChordPositionsCache& cache,
                                            const std::stop_token& stop) {
  const Positions positions =
      request.usesChordPositionsCache && isTuning(request.tuning)
          ? cachedPositions(request, engine, cache)
          : Chords::getChordPositions(request.chord, -1, request.tuning, engine);
  if (stop.stop_requested() || positions.empty()) return std::nullopt;
  if (!request.selectedPosition.empty()) {
    const ChordPosition* selected = findPosition(positions, request.selectedPosition);
    return selected != nullptr ? *selected : positions.front();
  }
  if (hasSoundingString(request.presetPosition)) {
    const ChordPosition* preset = findPosition(positions, request.presetPosition);
    return preset != nullptr ? *preset : nearestPosition(positions, request.presetPosition);
  }
  return positions.front();
}

namespace Chords {

std::future<std::optional<ChordPosition>> resolveChordPosition(PositionRequest request,
                                                               std::stop_token stop) {
  return std::async(std::launch::async, [request = std::move(request), stop = std::move(stop)] {
    processPlatform().lowerThreadPriority();
    return choosePosition(request, ChordEngine(), ChordPositionsCache::shared(), stop);
  });
}

}  // namespace Chords
}  // namespace tonelake
