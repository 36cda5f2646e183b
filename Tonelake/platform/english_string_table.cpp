#include "Tonelake/platform/string_table.h"

namespace tonelake {
namespace {

struct EnglishText {
  std::string_view key;
  std::string_view text;
};

// The keys that are not themselves the English text.
// clang-format off
constexpr EnglishText englishTexts[] = {
    {"inversion.root_position", "Root position"},
    {"inversion.first",         "First inversion"},
    {"inversion.second",        "Second inversion"},
    {"inversion.third",         "Third inversion"},
    {"inversion.fourth",        "Fourth inversion"},
    {"inversion.fifth",         "Fifth inversion"},
    {"inversion.sixth",         "Sixth inversion"},
    {"inversion.seventh",       "Seventh inversion"},
};
// clang-format on

class EnglishStringTable final : public StringTable {
 public:
  std::string localized(std::string_view key) const override {
    for (const EnglishText& english : englishTexts) {
      if (english.key == key) return std::string(english.text);
    }
    return std::string(key);
  }
};

}  // namespace

std::shared_ptr<const StringTable> makeEnglishStringTable() {
  return std::make_shared<EnglishStringTable>();
}

}  // namespace tonelake
