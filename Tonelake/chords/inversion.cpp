#include "Tonelake/chords/inversion.h"

#include "Tonelake/platform/platform.h"

namespace tonelake {
namespace {

// Raw values in case order. They are translation keys: do not change.
constexpr std::array<std::string_view, 8> rawValues{
    "inversion.root_position", "inversion.first", "inversion.second", "inversion.third",
    "inversion.fourth",        "inversion.fifth", "inversion.sixth",  "inversion.seventh"};

constexpr std::array<Inversion, rawValues.size()> cases{
    Inversion::rootPosition,   Inversion::firstInversion,  Inversion::secondInversion,
    Inversion::thirdInversion, Inversion::fourthInversion, Inversion::fifthInversion,
    Inversion::sixthInversion, Inversion::seventhInversion};

}  // namespace

std::optional<Inversion> Inversion::fromRawValue(std::string_view rawValue) noexcept {
  for (const Inversion inversion : cases) {
    if (inversion.rawValue() == rawValue) return inversion;
  }
  return std::nullopt;
}

std::span<const Inversion> Inversion::allCases() noexcept {
  return cases;
}

std::string_view Inversion::rawValue() const noexcept {
  return rawValues[case_];
}

std::string Inversion::localizedName() const {
  return localizedName(*processPlatform().strings);
}

std::string Inversion::localizedName(const StringTable& strings) const {
  return strings.localized(rawValue());
}

}  // namespace tonelake
