#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "Tonelake/foundation/json.h"

namespace zyndle {

/// Writes request ids as they came. A number that no 64-bit integer holds would change on its way
/// through a double: 12345678901234567890123 would go back as 1.2345678901234568e+22.
class RequestIds {
 public:
  /// `message` is the JSON text of one request or of a batch, and outlives this.
  RequestIds(std::string_view message, bool isBatch) : message_(message), isBatch_(isBatch) {}

  /// The JSON text of `id`, which is the id of the batch's request number `request` (0 for a
  /// single one).
  std::string write(const tonelake::json::Value& id, std::size_t request);

 private:
  using NumberTexts = std::map<std::size_t, std::string>;

  std::string_view message_;
  bool isBatch_;
  std::optional<NumberTexts> numberTexts_;  // made for the first such number: they are rare
};

}  // namespace zyndle
