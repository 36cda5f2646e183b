#include "zyndle/pattern_names.h"

#include <algorithm>
#include <utility>

#include "Desktop/files.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/patterns/pattern_json.h"
#include "zyndle/command_error.h"
#include "zyndle/nearest_names.h"
#include "zyndle/translation.h"

namespace zyndle {
namespace {

// Far above any library that somebody wrote.
constexpr std::size_t largestFile = std::size_t{1} << 20U;
constexpr const char* largestFileText = "1 MiB";

// Whether the document has patterns of this kind, which then take the place of all of that kind.
template <typename Part>
bool replacePart(Part& part, std::string_view key, const tonelake::json::Node& document) {
  if (!document.optionalMember(key)) return false;
  part = tonelake::decodePattern<Part>(document);
  return true;
}

void replaceParts(tonelake::PatternLibrary& library, const tonelake::json::Node& document) {
  const bool hasArpeggios = replacePart(library.arpeggios, "sequences", document);
  const bool hasBasses = replacePart(library.basses, "bassPatterns", document);
  const bool hasDrums = replacePart(library.drums, "drumPatterns", document);
  if (!hasArpeggios && !hasBasses && !hasDrums)
    document.fail("expected sequences, bassPatterns or drumPatterns");
}

void readParts(tonelake::PatternLibrary& library, const std::string& file) {
  const auto text = desktop::readFile(file, largestFile);
  if (!text) {
    refuse(translated("cannot read {0}, or it is larger than {1}", tonelake::quoted(file),
                      largestFileText));
  }
  try {
    const tonelake::json::Value document = tonelake::json::parse(*text);
    replaceParts(library, tonelake::json::Node(document));
  } catch (const tonelake::json::DecodingError& error) {
    refuse(translated("{0} is no library of patterns: {1}", tonelake::quoted(file), error.what()));
  }
}

}  // namespace

tonelake::PatternLibrary readLibrary(const std::optional<std::string>& file) {
  tonelake::PatternLibrary library = tonelake::builtInPatterns();
  if (file) readParts(library, *file);
  return library;
}

bool isSameName(std::string_view one, std::string_view other) {
  return tonelake::inSmallLetters(one) == tonelake::inSmallLetters(other);
}

std::string describeNearest(std::string_view name, const std::vector<std::string>& known) {
  constexpr std::size_t handful = 3;
  constexpr std::size_t longestName = 64;
  if (name.size() > longestName) return "";
  const std::string wanted = tonelake::inSmallLetters(name);
  std::vector<std::pair<std::size_t, std::string>> ranked;
  for (const std::string& candidate : known) {
    const std::string own = tonelake::inSmallLetters(candidate);
    const bool isPart = !wanted.empty() && own.find(wanted) != std::string::npos;
    const std::size_t distance = isPart ? 0 : editDistance(wanted, own, longestName);
    if (isPart || distance * 2 <= own.size()) ranked.emplace_back(distance, candidate);
  }
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<std::string> nearest;
  for (const auto& [distance, candidate] : ranked) {
    if (nearest.size() < handful) nearest.push_back(candidate);
  }
  if (nearest.empty()) return "; " + translated("{} lists all", "zyndle patterns");
  return "; " + translated("the nearest are {}", tonelake::join(nearest, ", "));
}

}  // namespace zyndle
