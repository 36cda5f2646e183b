#include "Desktop/translation.h"

#include <utility>

namespace desktop {
namespace {

std::shared_ptr<const tonelake::StringTable>& chosenStrings() {
  static auto table = tonelake::makeEnglishStringTable();
  return table;
}

}  // namespace

std::shared_ptr<const tonelake::StringTable> strings() {
  return chosenStrings();
}

void chooseStrings(std::shared_ptr<const tonelake::StringTable> strings) {
  chosenStrings() = std::move(strings);
}

std::string translated(const char* english) {
  return chosenStrings()->localized(english);
}

}  // namespace desktop
