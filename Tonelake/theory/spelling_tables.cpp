#include "Tonelake/theory/spelling_tables.h"

#include "Tonelake/foundation/fatal.h"
#include "Tonelake/theory/octave.h"

namespace tonelake {
namespace {

std::unordered_map<std::string_view, int> indexNames() {
  std::unordered_map<std::string_view, int> indexes;
  for (const SpellingTable* table : spellingTables) {
    for (std::size_t i = 0; i < table->size(); ++i) {
      const int pitchClass = static_cast<int>(i % octave);
      // The first index met for a name counts; a later one can only agree.
      const auto [entry, isNew] = indexes.emplace((*table)[i], pitchClass);
      if (!isNew && entry->second != pitchClass) {
        stopWithProgrammingError("a note name stands for two pitches in the spelling tables");
      }
    }
  }
  return indexes;
}

}  // namespace

const std::unordered_map<std::string_view, int>& noteIndexByName() {
  static const auto indexes = indexNames();
  return indexes;
}

}  // namespace tonelake
