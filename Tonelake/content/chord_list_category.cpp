#include "Tonelake/content/chord_list_category.h"

#include <array>

#include "Tonelake/foundation/case_table.h"

namespace tonelake {
namespace {

struct CategoryName {
  ChordListCategory category;
  std::string_view rawValue;
};

// clang-format off
constexpr std::array<CategoryName, 18> names{{
    {ChordListCategory::commonChords,         "commonChords"},
    {ChordListCategory::beginnerEssentials,   "beginnerEssentials"},
    {ChordListCategory::barreChords,          "barreChords"},
    {ChordListCategory::popularProgressions,  "popularProgressions"},
    {ChordListCategory::jazzChords,           "jazzChords"},
    {ChordListCategory::fingerstyleFavorites, "fingerstyleFavorites"},
    {ChordListCategory::powerChords,          "powerChords"},
    {ChordListCategory::bluesChords,          "bluesChords"},
    {ChordListCategory::colorfulChords,       "colorfulChords"},
    {ChordListCategory::slashChords,          "slashChords"},
    {ChordListCategory::capoFriendly,         "capoFriendly"},
    {ChordListCategory::undergroundMusic,     "undergroundMusic"},
    {ChordListCategory::country,              "country"},
    {ChordListCategory::folk,                 "folk"},
    {ChordListCategory::metal,                "metal"},
    {ChordListCategory::rock,                 "rock"},
    {ChordListCategory::alternative,          "alternative"},
    {ChordListCategory::rnb,                  "rnb"},
}};
// clang-format on

constexpr auto cases = listCases<ChordListCategory>(names, &CategoryName::category);
static_assert(followsCaseOrder(cases), "row i names case i");

}  // namespace

std::optional<ChordListCategory> ChordListCategory::fromRawValue(
    std::string_view rawValue) noexcept {
  return findCase<ChordListCategory>(names, &CategoryName::category, rawValue);
}

std::span<const ChordListCategory> ChordListCategory::allCases() noexcept {
  return cases;
}

std::string_view ChordListCategory::rawValue() const noexcept {
  return names[case_].rawValue;
}

}  // namespace tonelake
