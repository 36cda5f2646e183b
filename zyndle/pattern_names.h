#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/accompaniment/built_in_patterns.h"

namespace zyndle {

/// The patterns to choose from: the built-in ones, each kind of which gives way to that of a file,
/// where a file is given and has patterns of that kind. A CommandError that names the file when it
/// cannot be read or has none.
tonelake::PatternLibrary readLibrary(const std::optional<std::string>& file);

/// Whether two names are the same but for capitals.
bool isSameName(std::string_view one, std::string_view other);

/// What follows the problem with a name that is none of `known`: "; the nearest are Rolling Six,
/// Plucked Waltz", where none is near "; zyndle patterns lists all", and nothing after a name
/// longer than any pattern's.
std::string describeNearest(std::string_view name, const std::vector<std::string>& known);

/// The first pattern of exactly this name, else the first whose name differs in capitals only; null
/// when there is none.
template <typename Pattern>
const Pattern* findPattern(const std::vector<Pattern>& patterns, std::string_view name) {
  const Pattern* similar = nullptr;
  for (const Pattern& pattern : patterns) {
    if (pattern.name == name) return &pattern;
    if (similar == nullptr && isSameName(pattern.name, name)) similar = &pattern;
  }
  return similar;
}

template <typename Pattern>
void addNames(std::vector<std::string>& names, const std::vector<Pattern>& patterns) {
  for (const Pattern& pattern : patterns) names.push_back(pattern.name);
}

}  // namespace zyndle
