#pragma once

#include <string>
#include <string_view>

#include "Tonelake/platform/string_table.h"

namespace tonelake::testing {

/// A language in which every text ends in "!".
class Shouting final : public StringTable {
 public:
  std::string localized(std::string_view key) const override { return std::string(key) + "!"; }
};

}  // namespace tonelake::testing
