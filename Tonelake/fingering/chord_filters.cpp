#include "Tonelake/fingering/chord_filters.h"

namespace tonelake {

const ChordFilters& ChordFilters::shared() {
  static const ChordFilters filters;
  return filters;
}

std::optional<std::vector<std::string>> ChordFilters::filters(std::string_view label) const {
  const auto found = filters_.find(label);
  return found == filters_.end() ? std::nullopt : std::optional(found->second);
}

// Label, then its chord types in the order in which they are shown. A type may stand under
// several labels; "9" and "11" are short, kept on purpose.
ChordFilters::ChordFilters()
    : filters_{
          {"maj",
           {"major", "major 7th", "major 9", "major 11", "major add 9", "major 7th add 11",
            "major 7th add 13", "major 7th suspended 4th", "major 7th suspended 2nd"}},
          {"min",
           {"minor", "minor 7th", "minor major 7th", "minor major 6", "minor 9", "minor major 9",
            "minor 11", "minor major 11", "minor add 9", "minor 6", "minor 6 add 9",
            "minor 7th add 11", "minor major 7th add 11", "minor 7th add 13",
            "minor major 7th add 13", "minor 7th flat 5", "minor 7th sharp 5",
            "minor 7th flat 9th"}},
          {"7th",
           {"dominant 7th",
            "major 7th",
            "minor 7th",
            "minor major 7th",
            "dominant 7th add 11",
            "major 7th add 11",
            "minor 7th add 11",
            "minor major 7th add 11",
            "dominant 7th add 13",
            "major 7th add 13",
            "minor 7th add 13",
            "minor major 7th add 13",
            "dominant 7th flat 5",
            "augmented 7th",
            "dominant 7th flat 9th",
            "dominant 7th sharp 9th",
            "augmented 7th flat 9th",
            "minor 7th flat 5",
            "minor 7th sharp 5",
            "minor 7th flat 9th",
            "dominant 7th suspended 4th",
            "dominant 7th suspended 2nd",
            "major 7th suspended 4th",
            "major 7th suspended 2nd",
            "diminished 7th"}},
          {"dim", {"diminished", "diminished 7th"}},
          {"aug", {"augmented", "augmented 7th", "augmented 7th flat 9th"}},
          {"sus",
           {"suspended 4th", "suspended 2nd", "6 suspended 4th", "6 suspended 2nd",
            "dominant 7th suspended 4th", "dominant 7th suspended 2nd", "major 7th suspended 4th",
            "major 7th suspended 2nd"}},
          {"5", {"5"}},
          {"6", {"6", "6 add 9", "6 suspended 4th", "6 suspended 2nd", "minor 6", "minor 6 add 9"}},
          {"9", {"9", "minor add 9", "minor 6 add 9"}},
          {"11", {"11"}},
          {"add 13",
           {"dominant 7th add 13", "major 7th add 13", "minor 7th add 13",
            "minor major 7th add 13"}},
      } {}

}  // namespace tonelake
