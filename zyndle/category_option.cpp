#include "zyndle/category_option.h"

#include <vector>

#include "TodayChordExtension/widgets/shared_settings.h"
#include "Tonelake/foundation/text.h"
#include "Tonelake/platform/platform.h"
#include "zyndle/command_error.h"
#include "zyndle/translation.h"

namespace zyndle {

using tonelake::ChordCategory;

ChordCategory readCategory(std::string_view name, const std::string& text) {
  if (const auto category = ChordCategory::fromRawValue(text)) return *category;
  std::vector<std::string> known;
  for (const ChordCategory each : ChordCategory::allCases()) known.emplace_back(each.rawValue());
  refuse(translated("{0} {1} is not one of {2}", name, tonelake::quoted(text),
                    tonelake::join(known, ", ")));
}

std::optional<ChordCategory> readCategory(const std::optional<std::string>& text) {
  if (!text) return std::nullopt;
  return readCategory("--category", *text);
}

ChordCategory categoryAsSet() {
  return todaychord::SharedSettings(tonelake::processPlatform().sharedSettings)
      .todayChordCategory();
}

}  // namespace zyndle
