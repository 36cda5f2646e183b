#include <algorithm>

#include "Tonelake/patterns/arpeggio_sequence.h"

namespace tonelake {
namespace {

template <typename Pattern>
const Pattern* firstNamed(const std::vector<Pattern>& patterns, std::string_view name) noexcept {
  const auto found = std::find_if(patterns.begin(), patterns.end(),
                                  [&](const Pattern& pattern) { return pattern.name == name; });
  return found == patterns.end() ? nullptr : &*found;
}

}  // namespace

const BassPattern* BassPatterns::getBassPattern(std::string_view byName) const noexcept {
  return firstNamed(bassPatterns, byName);
}

const DrumPattern* DrumPatterns::getDrumPattern(std::string_view byName) const noexcept {
  return firstNamed(drumPatterns, byName);
}

const ArpeggioSequence* ArpeggioSequences::getSequence(std::string_view byName) const noexcept {
  return firstNamed(sequences, byName);
}

}  // namespace tonelake
