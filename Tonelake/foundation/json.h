#pragma once

// Internal to the library and its hosts: not part of the public interface, since it names the
// JSON library. The one place where JSON text from outside is decoded.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

#include "Tonelake/foundation/api.h"
#include "Tonelake/foundation/whole_number.h"

namespace tonelake::json {

/// Keeps the keys of objects in the order they were written.
using Value = nlohmann::ordered_json;

/// Nesting that a text from outside may have. The JSON library recurses when it copies, compares
/// or writes a value, so depth is refused while parsing.
inline constexpr std::size_t depthLimit = 32;

/// Keys that an object from outside may have: objects that keep their order look keys up one by
/// one, so a very long one would take very long to read.
inline constexpr std::size_t memberLimit = 4096;

/// What is wrong with a text or a value, for example "[3].rootNote: expected a text".
class TONELAKE_API DecodingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The value that `text` holds. Throws DecodingError when it is not JSON, not UTF-8, or
/// beyond depthLimit or memberLimit.
TONELAKE_API Value parse(std::string_view text);

/// `value` as compact JSON text. Invalid UTF-8 inside texts is replaced by U+FFFD, never thrown.
TONELAKE_API std::string write(const Value& value);

/// One value inside a document together with the path that leads to it, so that an error can
/// name its place. Refers to the document: keep that alive.
class TONELAKE_API Node {
 public:
  explicit Node(const Value& value, std::string path = "")
      : value_(&value), path_(std::move(path)) {}

  const Value& value() const noexcept { return *value_; }
  const std::string& path() const noexcept { return path_; }

  /// Each throws DecodingError, with the path, when the value has another type. Whole numbers
  /// are strict: 1.9, 1.0 and true are none; neither is anything outside lowest..highest.
  const std::string& text() const;
  bool boolean() const;
  double number() const;
  WholeNumber wholeNumber(WholeNumber lowest = INT64_MIN, WholeNumber highest = INT64_MAX) const;
  std::size_t size() const;               ///< Elements of a list.
  Node element(std::size_t index) const;  ///< Throws when a list has no such element.

  /// A key of an object; throws when the value is no object or has no such key.
  Node member(std::string_view key) const;
  /// As member, but nothing when the key is missing or its value is null.
  std::optional<Node> optionalMember(std::string_view key) const;

  /// Throws DecodingError: the path, a colon and `problem`.
  [[noreturn]] void fail(std::string_view problem) const;

 private:
  void requireObject() const;
  std::string pathOf(std::string_view key) const;

  const Value* value_;
  std::string path_;
};

/// The elements of a list, each passed through `decode`, a function of one Node.
template <typename Decode>
auto decodeList(const Node& node, Decode decode) {
  std::vector<decltype(decode(node))> list;
  const std::size_t size = node.size();
  list.reserve(size);
  for (std::size_t i = 0; i < size; ++i) list.push_back(decode(node.element(i)));
  return list;
}

}  // namespace tonelake::json
