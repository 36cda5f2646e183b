#include "Tonelake/today/chord_category.h"

#include <array>

#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

struct CategoryNames {
  std::string_view rawValue;
  std::string_view titleKey;
};

constexpr std::array<ChordCategory, 3> cases{ChordCategory::beginner, ChordCategory::advanced,
                                             ChordCategory::jazz};

// In case order.
constexpr std::array<CategoryNames, cases.size()> names{
    {{"beginner", "Beginner"}, {"advanced", "Advanced"}, {"jazz", "Jazz"}}};

}  // namespace

std::optional<ChordCategory> ChordCategory::fromRawValue(std::string_view rawValue) noexcept {
  for (const ChordCategory category : cases) {
    if (category.rawValue() == rawValue) return category;
  }
  return std::nullopt;
}

std::span<const ChordCategory> ChordCategory::allCases() noexcept {
  return cases;
}

std::string_view ChordCategory::rawValue() const noexcept {
  return names[case_].rawValue;
}

std::string ChordCategory::localizedTitle() const {
  return localizedTitle(*processPlatform().strings);
}

std::string ChordCategory::localizedTitle(const StringTable& strings) const {
  return strings.localized(names[case_].titleKey);
}

}  // namespace tonelake
