#include "Tonelake/fingering/chord_engine.h"

#include <algorithm>
#include <optional>

#include "Tonelake/fingering/required_tones.h"
#include "Tonelake/fingering/shape_search.h"
#include "Tonelake/fingering/stored_positions.h"

namespace tonelake {
namespace {

bool isWrittenRegularly(std::string_view name) {
  return std::find(notesArrayRegular.begin(), notesArrayRegular.end(), name) !=
         notesArrayRegular.end();
}

std::optional<std::array<OpenString, Tuning::stringCount>> openStrings(const TuningNames& tuning) {
  std::array<OpenString, Tuning::stringCount> strings;
  if (tuning.size() != strings.size()) return std::nullopt;
  for (std::size_t i = 0; i < strings.size(); ++i) {
    const auto note = pitchClassNamed(tuning[i]);
    if (!note) return std::nullopt;
    strings[i] = {*note, isWrittenRegularly(tuning[i])};
  }
  return strings;
}

// The query for a search, or nothing when there is nothing to search for.
std::optional<ShapeQuery> makeQuery(std::string_view rootNote,
                                    std::span<const WholeNumber> intervals, WholeNumber limit,
                                    const TuningNames& tuning) {
  const auto root = pitchClassNamed(rootNote);
  const auto strings = openStrings(tuning);
  const bool hasNegative =
      std::any_of(intervals.begin(), intervals.end(), [](WholeNumber n) { return n < 0; });
  if (!root || !strings || intervals.empty() || hasNegative) return std::nullopt;
  return ShapeQuery{tonesAbove(*root, intervals), requiredTones(*root, intervals),
                    static_cast<int>((*root + intervals.front() % octave) % octave), limit,
                    *strings};
}

}  // namespace

ChordEngine::ChordEngine() : ChordEngine(processPlatform()) {}

ChordEngine::ChordEngine(const Platform& platform)
    : appVersion(platform.application.version),
      build(platform.application.build),
      store_(platform.standardSettings) {}

std::vector<ChordPosition> ChordEngine::generateChordShapes(std::string_view rootNote,
                                                            std::span<const WholeNumber> intervals,
                                                            WholeNumber limit,
                                                            const TuningNames& tuning) const {
  const auto query = makeQuery(rootNote, intervals, limit, tuning);
  if (!query) return {};
  const std::string key =
      storedPositionsKey(rootNote, intervals, limit, tuning, {appVersion, build});
  if (const auto stored = store_->data(key)) {
    if (auto positions = decodePositions(*stored)) return *std::move(positions);
  }
  std::vector<ChordPosition> positions = searchShapes(*query);
  store_->setData(key, encodePositions(positions));
  return positions;
}

std::vector<ChordPosition> ChordEngine::searchChordShapes(std::string_view rootNote,
                                                          std::span<const WholeNumber> intervals,
                                                          WholeNumber limit,
                                                          const TuningNames& tuning) {
  const auto query = makeQuery(rootNote, intervals, limit, tuning);
  return query ? searchShapes(*query) : std::vector<ChordPosition>();
}

}  // namespace tonelake
