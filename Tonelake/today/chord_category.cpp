#include "Tonelake/today/chord_category.h"

#include <array>

#include "Tonelake/foundation/case_table.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

struct CategoryNames {
  ChordCategory::Case category;
  std::string_view rawValue;
  std::string_view titleKey;
};

// clang-format off
constexpr std::array<CategoryNames, 3> names{{
    {ChordCategory::beginner, "beginner", "Beginner"},
    {ChordCategory::advanced, "advanced", "Advanced"},
    {ChordCategory::jazz,     "jazz",     "Jazz"},
}};
// clang-format on

constexpr auto cases = listCases<ChordCategory>(names, &CategoryNames::category);
static_assert(followsCaseOrder(cases), "row i names case i");

}  // namespace

std::optional<ChordCategory> ChordCategory::fromRawValue(std::string_view rawValue) noexcept {
  return findCase<ChordCategory>(names, &CategoryNames::category, rawValue);
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
