#include "Tonelake/content/music_styles.h"

#include <array>

#include "Tonelake/foundation/case_table.h"

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

constexpr auto cases = listCases<MusicStyles>(names, &StyleNames::style);
static_assert(followsCaseOrder(cases), "row i names case i");

}  // namespace

std::optional<MusicStyles> MusicStyles::fromRawValue(std::string_view rawValue) noexcept {
  return findCase<MusicStyles>(names, &StyleNames::style, rawValue);
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
