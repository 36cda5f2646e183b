#pragma once

#include <optional>
#include <string_view>

#include "Tonelake/foundation/json.h"
#include "fuzz/fuzzer.h"

namespace fuzz {

namespace json = tonelake::json;

/// The document that a text holds; nothing for one that is refused as it should be.
inline std::optional<json::Value> parseJson(std::string_view text) {
  try {
    return json::parse(text);
  } catch (const json::DecodingError&) {
    return std::nullopt;
  }
}

/// The record that a document holds; nothing for one that is refused as it should be.
template <typename Decode>
auto decoded(const json::Value& document, Decode decode)
    -> std::optional<decltype(decode(json::Node(document)))> {
  try {
    return decode(json::Node(document));
  } catch (const json::DecodingError& error) {
    require(*error.what() != '\0', "an error says what is wrong");
    return std::nullopt;
  }
}

/// What is decoded and encoded is decoded again, and encoded to the very same text. Encodings are
/// compared because records may count as equal for less than all they hold. Returns the record.
template <typename Decode, typename Encode>
auto requireAgreement(const json::Value& document, Decode decode, Encode encode) {
  auto record = decoded(document, decode);
  if (record) {
    const std::string text = json::write(encode(*record));
    const json::Value again = json::parse(text);
    require(json::write(encode(decode(json::Node(again)))) == text,
            "decoding, encoding and decoding agree");
  }
  return record;
}

}  // namespace fuzz
