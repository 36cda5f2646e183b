#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// Chord types grouped under the labels by which they are browsed. Read-only: any thread may use
/// it.
class TONELAKE_API ChordFilters {
 public:
  /// Names of chord types by label.
  using Filters = std::map<std::string, std::vector<std::string>, std::less<>>;

  /// The one table; made on first use, kept for good.
  static const ChordFilters& shared();

  /// The chord-type names under a label such as "sus"; nothing for an unknown label.
  std::optional<std::vector<std::string>> filters(std::string_view label) const;

  /// Every label with its chord-type names.
  const Filters& allFilters() const { return filters_; }

 private:
  ChordFilters();

  Filters filters_;
};

}  // namespace tonelake
