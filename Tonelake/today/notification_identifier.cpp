#include "Tonelake/today/notification_identifier.h"

#include <charconv>
#include <vector>

#include "Tonelake/foundation/text.h"

namespace tonelake {
namespace {

constexpr std::string_view prefix = "chordOfTheDay";

bool readNumber(std::string_view text, int& number) {
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  return error == std::errc() && stop == end;
}

}  // namespace

std::string notificationIdentifier(const ReminderKey& key) {
  return join({std::string(prefix), std::string(key.category.rawValue()), std::to_string(key.year),
               std::to_string(key.month), std::to_string(key.day)},
              "_");
}

std::optional<ReminderKey> parseNotificationIdentifier(std::string_view identifier) {
  const std::vector<std::string_view> pieces = split(identifier, '_');
  if (pieces.size() != 5) return std::nullopt;
  const auto category = ChordCategory::fromRawValue(pieces[1]);
  ReminderKey key;
  if (!category || !readNumber(pieces[2], key.year) || !readNumber(pieces[3], key.month) ||
      !readNumber(pieces[4], key.day)) {
    return std::nullopt;
  }
  key.category = *category;
  // Whatever else reads as the same numbers, such as "03", is not an identifier of ours.
  return notificationIdentifier(key) == identifier ? std::optional(key) : std::nullopt;
}

}  // namespace tonelake
