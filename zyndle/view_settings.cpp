#include "zyndle/view_settings.h"

namespace zyndle {

tonelake::ChordCategory todayChordCategory(const tonelake::SettingsStore& settings) {
  return tonelake::ChordCategory::fromRawValue(settings.text(todayChordCategoryKey).value_or(""))
      .value_or(tonelake::ChordCategory::beginner);
}

bool isLeftHanded(const tonelake::SettingsStore& settings) {
  return settings.boolean(leftHandedKey).value_or(false);
}

}  // namespace zyndle
