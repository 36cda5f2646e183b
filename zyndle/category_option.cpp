#include "zyndle/category_option.h"

#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {

using tonelake::ChordCategory;

std::optional<ChordCategory> readCategory(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  const std::optional<ChordCategory> category = ChordCategory::fromRawValue(*text);
  if (!category) {
    refuse(translated("{0} {1} is not one of {2}", "--category", tonelake::quoted(*text),
                      "beginner, advanced, jazz"));
  }
  return category;
}

ChordCategory categoryAsSet() {
  return todaychord::SharedSettings(tonelake::processPlatform().sharedSettings)
      .todayChordCategory();
}

}  // namespace zyndle
