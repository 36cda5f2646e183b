#include "Tonelake/chords/inversion.h"

#include <array>

#include "Tonelake/foundation/case_table.h"
#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

struct InversionName {
  Inversion::Case inversion;
  std::string_view rawValue;
};

// Raw values are translation keys: do not change.
// clang-format off
constexpr std::array<InversionName, 8> names{{
    {Inversion::rootPosition,     "inversion.root_position"},
    {Inversion::firstInversion,   "inversion.first"},
    {Inversion::secondInversion,  "inversion.second"},
    {Inversion::thirdInversion,   "inversion.third"},
    {Inversion::fourthInversion,  "inversion.fourth"},
    {Inversion::fifthInversion,   "inversion.fifth"},
    {Inversion::sixthInversion,   "inversion.sixth"},
    {Inversion::seventhInversion, "inversion.seventh"},
}};
// clang-format on

constexpr auto cases = listCases<Inversion>(names, &InversionName::inversion);
static_assert(followsCaseOrder(cases), "row i names case i");

}  // namespace

std::optional<Inversion> Inversion::fromRawValue(std::string_view rawValue) noexcept {
  return findCase<Inversion>(names, &InversionName::inversion, rawValue);
}

std::span<const Inversion> Inversion::allCases() noexcept {
  return cases;
}

std::string_view Inversion::rawValue() const noexcept {
  return names[case_].rawValue;
}

std::string Inversion::localizedName() const {
  return localizedName(*processPlatform().strings);
}

std::string Inversion::localizedName(const StringTable& strings) const {
  return strings.localized(rawValue());
}

}  // namespace tonelake
