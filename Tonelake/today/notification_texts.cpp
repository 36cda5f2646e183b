#include "Tonelake/today/notification_texts.h"

#include "Tonelake/foundation/text.h"

namespace tonelake {

std::string notificationBody(const StringTable& strings, std::string_view key,
                             std::string_view chordName) {
  return replaceAll(strings.localized(key), "%s", chordName);
}

}  // namespace tonelake
