#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

// Texts inside links, as RFC 3986 has them.

/// A letter or digit of ASCII, "-", ".", "_" or "~": what a link may hold as it stands.
TONELAKE_API bool isUnreserved(char character) noexcept;

/// Every other byte as "%" and two capital digits: "F♯ +" gives "F%E2%99%AF%20%2B".
TONELAKE_API std::string percentEncode(std::string_view text);

/// The text behind an encoded one. A "+" is a plus, not a blank. Nothing where a "%" is not
/// followed by two hexadecimal digits or the bytes are no UTF-8.
TONELAKE_API std::optional<std::string> percentDecode(std::string_view text);

}  // namespace todaychord
