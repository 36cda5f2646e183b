#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// A universally unique identifier, 128 bits. Records carry one where two of them may hold the
/// same and yet be two.
struct TONELAKE_API Uuid {
  std::array<std::uint8_t, 16> bytes{};  ///< in the order in which they are written

  /// A new one (version 4). Any thread may call.
  static Uuid random();

  /// Reads "f81d4fae-7dec-41d0-a765-00a0c91e6bf6", in capitals too, of whatever version; nothing
  /// for any other text.
  static std::optional<Uuid> fromText(std::string_view text) noexcept;

  /// The form above, in small letters.
  std::string text() const;

  friend bool operator==(const Uuid&, const Uuid&) = default;
};

}  // namespace tonelake
