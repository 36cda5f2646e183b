#include "Tonelake/content/music_styles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <utility>

namespace tonelake {
namespace {

struct StyleNames {
  MusicStyles style;
  std::string_view caseName;
  std::string_view rawValue;
};

// clang-format off
constexpr std::array<StyleNames, 25> names{{
    {MusicStyles::folk,        "folk",        "Folk"},
    {MusicStyles::blues,       "blues",       "Blues"},
    {MusicStyles::pop,         "pop",         "Pop"},
    {MusicStyles::rock,        "rock",        "Rock"},
    {MusicStyles::country,     "country",     "Country"},
    {MusicStyles::jazz,        "jazz",        "Jazz"},
    {MusicStyles::classical,   "classical",   "Classical"},
    {MusicStyles::metal,       "metal",       "Metal"},
    {MusicStyles::hiphop,      "hiphop",      "Hip Hop"},
    {MusicStyles::reggae,      "reggae",      "Reggae"},
    {MusicStyles::electronic,  "electronic",  "Electronic"},
    {MusicStyles::punk,        "punk",        "Punk"},
    {MusicStyles::soul,        "soul",        "Soul"},
    {MusicStyles::funk,        "funk",        "Funk"},
    {MusicStyles::disco,       "disco",       "Disco"},
    {MusicStyles::rnb,         "rnb",         "R&B"},
    {MusicStyles::dramatic,    "dramatic",    "Dramatic"},
    {MusicStyles::emotional,   "emotional",   "Emotional"},
    {MusicStyles::ballad,      "ballad",      "Ballad"},
    {MusicStyles::melancholic, "melancholic", "Melancholic"},
    {MusicStyles::modal,       "modal",       "Modal"},
    {MusicStyles::medieval,    "medieval",    "Medieval"},
    {MusicStyles::traditional, "traditional", "Traditional"},
    {MusicStyles::romantic,    "romantic",    "Romantic"},
    {MusicStyles::cinematic,   "cinematic",   "Cinematic"},
}};
// clang-format on

template <std::size_t... places>
constexpr std::array<MusicStyles, names.size()> listCases(std::index_sequence<places...>) {
  return {names[places].style...};
}
constexpr auto cases = listCases(std::make_index_sequence<names.size()>());

constexpr bool followsCaseOrder() {
  for (std::size_t i = 0; i < cases.size(); ++i) {
    if (static_cast<std::size_t>(cases[i]) != i) return false;
  }
  return true;
}
static_assert(followsCaseOrder(), "row i names case i");

}  // namespace

std::optional<MusicStyles> MusicStyles::fromRawValue(std::string_view rawValue) noexcept {
  const auto found = std::find_if(names.begin(), names.end(), [&](const StyleNames& name) {
    return name.rawValue == rawValue;
  });
  if (found == names.end()) return std::nullopt;
  return found->style;
}

std::span<const MusicStyles> MusicStyles::allCases() noexcept {
  return cases;
}

std::string_view MusicStyles::rawValue() const noexcept {
  return names[case_].rawValue;
}

std::string_view MusicStyles::caseName() const noexcept {
  return names[case_].caseName;
}

}  // namespace tonelake
