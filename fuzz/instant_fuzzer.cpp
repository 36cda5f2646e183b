#include "fuzz/fuzzer.h"
#include "zyndle/rpc/instant_text.h"

// Written moments: what is read and written is read as the same.

namespace fuzz {

void examine(std::string_view input) {
  const auto instant = zyndle::parseInstant(input);
  if (!instant) return;
  require(zyndle::parseInstant(zyndle::formatInstant(*instant)) == instant,
          "a moment that is written is read as the same");
}

std::vector<std::string> seeds() {
  return {"2025-03-07T09:00:00Z", "2025-03-07t10:00:00.25+01:00", "2016-12-31T23:59:60Z",
          "0000-01-01T00:00:00-00:00", "9999-12-31T23:59:59.999999999z"};
}

}  // namespace fuzz
