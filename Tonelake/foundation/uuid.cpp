#include "Tonelake/foundation/uuid.h"

#include <charconv>
#include <cstddef>
#include <random>

namespace tonelake {
namespace {

constexpr std::string_view hexadecimal = "0123456789abcdef";
constexpr std::size_t textLength = 36;
constexpr unsigned lowNibble = 0x0FU;

// Before which bytes the text has a dash: 8, 4, 4, 4 and 12 digits.
bool isAfterDash(std::size_t byte) {
  return byte == 4 || byte == 6 || byte == 8 || byte == 10;
}

}  // namespace

Uuid Uuid::random() {
  std::random_device device;
  Uuid uuid;
  for (std::uint8_t& byte : uuid.bytes) byte = static_cast<std::uint8_t>(device());
  // Four bits tell the version, two the variant; the other 122 are random.
  uuid.bytes[6] = static_cast<std::uint8_t>(0x40U | (uuid.bytes[6] & lowNibble));
  uuid.bytes[8] = static_cast<std::uint8_t>(0x80U | (uuid.bytes[8] & 0x3FU));
  return uuid;
}

std::optional<Uuid> Uuid::fromText(std::string_view text) noexcept {
  if (text.size() != textLength) return std::nullopt;
  Uuid uuid;
  const char* place = text.data();
  for (std::size_t i = 0; i < uuid.bytes.size(); ++i) {
    if (isAfterDash(i) && *place++ != '-') return std::nullopt;
    const auto [end, error] = std::from_chars(place, place + 2, uuid.bytes[i], 16);
    if (error != std::errc() || end != place + 2) return std::nullopt;
    place = end;
  }
  return uuid;
}

std::string Uuid::text() const {
  std::string text;
  text.reserve(textLength);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (isAfterDash(i)) text += '-';
    text += hexadecimal[bytes[i] >> 4U];
    text += hexadecimal[bytes[i] & lowNibble];
  }
  return text;
}

}  // namespace tonelake
