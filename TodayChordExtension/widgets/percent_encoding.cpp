#include "TodayChordExtension/widgets/percent_encoding.h"

#include <charconv>

#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

constexpr std::string_view hexadecimalDigits = "0123456789ABCDEF";
constexpr int hexadecimal = 16;

std::optional<char> decodeByte(std::string_view digits) {
  unsigned char byte = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, byte, hexadecimal);
  if (digits.size() != 2 || error != std::errc() || stop != end) return std::nullopt;
  return static_cast<char>(byte);
}

}  // namespace

bool isUnreserved(char character) noexcept {
  return (character >= 'A' && character <= 'Z') || (character >= 'a' && character <= 'z') ||
         (character >= '0' && character <= '9') || character == '-' || character == '.' ||
         character == '_' || character == '~';
}

std::string percentEncode(std::string_view text) {
  std::string encoded;
  for (const char character : text) {
    if (isUnreserved(character)) {
      encoded += character;
      continue;
    }
    const auto byte = static_cast<unsigned char>(character);
    encoded += {'%', hexadecimalDigits[byte / hexadecimal], hexadecimalDigits[byte % hexadecimal]};
  }
  return encoded;
}

std::optional<std::string> percentDecode(std::string_view text) {
  std::string decoded;
  while (!text.empty()) {
    if (text.front() != '%') {
      decoded += text.front();
      text.remove_prefix(1);
      continue;
    }
    const auto byte = decodeByte(text.substr(1, 2));
    if (!byte) return std::nullopt;
    decoded += *byte;
    text.remove_prefix(3);
  }
  if (!tonelake::isValidUtf8(decoded)) return std::nullopt;
  return decoded;
}

}  // namespace todaychord
