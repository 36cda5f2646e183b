#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "Tonelake/foundation/api.h"

namespace tonelake {

/// The pieces of `text` between separators, empty ones included; "" gives one empty piece.
TONELAKE_API std::vector<std::string_view> split(std::string_view text, char separator);

/// What stands between runs of any of the bytes in `separators`: " C, G " and " ," give {"C","G"}.
std::vector<std::string_view> splitWords(std::string_view text, std::string_view separators);

/// The pieces with `separator` between them: {"E","A"} and "," give "E,A".
TONELAKE_API std::string join(const std::vector<std::string>& pieces, std::string_view separator);

/// `text` with every occurrence of `from` (not empty) replaced by `to`.
std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// `text` without white space at both ends: blanks of every width, tabs and line breaks.
std::string_view trimmed(std::string_view text) noexcept;

/// Characters as a reader counts them. Our names hold no combining marks, so one code point is
/// one character: "E♭" has two. `text` is UTF-8.
std::size_t countCharacters(std::string_view text) noexcept;

/// The characters of `text` one by one. A byte that belongs to no well-formed UTF-8 character is a
/// piece of its own: "é\xFF" gives "é" and "\xFF".
TONELAKE_API std::vector<std::string_view> splitCharacters(std::string_view text);

/// U+FFFD: what takes the place of a piece that cannot be shown.
inline constexpr std::string_view replacementCharacter = "\uFFFD";

/// Whether one of those pieces may stand in a line of text: a well-formed character that is no
/// control (U+0000 to U+001F and U+007F to U+009F).
TONELAKE_API bool isPrintable(std::string_view character) noexcept;

/// As much of the front of `text` as `size` bytes hold without cutting a character.
std::string_view frontOf(std::string_view text, std::size_t size) noexcept;

/// `text` between quotation marks for a message; a long one is cut after 40 bytes, between two
/// characters, and ends in "...".
std::string quoted(std::string_view text);

/// Letters A to Z and a to z in the other case; every other byte as it is.
TONELAKE_API char lowercase(char letter) noexcept;
TONELAKE_API char uppercase(char letter) noexcept;

/// `text` with each of its bytes as lowercase makes it: "Drop C♯" is "drop c♯".
TONELAKE_API std::string inSmallLetters(std::string_view text);

/// Whether `text` is well-formed UTF-8 (no overlong forms, no surrogates, nothing above U+10FFFF).
TONELAKE_API bool isValidUtf8(std::string_view text) noexcept;

}  // namespace tonelake
