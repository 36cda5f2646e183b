#include "Tonelake/theory/spelling_tables.h"

#include "Tonelake/theory/note.h"

namespace tonelake {
namespace {

std::unordered_map<std::string_view, int> indexNames() {
  std::unordered_map<std::string_view, int> indexes;
  for (const Note note : Note::allCases()) indexes.emplace(note.rawValue(), note.pitchClass());
  return indexes;
}

}  // namespace

const std::unordered_map<std::string_view, int>& noteIndexByName() {
  static const auto indexes = indexNames();
  return indexes;
}

std::optional<int> pitchClassNamed(std::string_view name) {
  const auto& indexes = noteIndexByName();
  const auto found = indexes.find(name);
  return found == indexes.end() ? std::nullopt : std::optional(found->second);
}

}  // namespace tonelake
