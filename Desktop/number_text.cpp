#include "Desktop/number_text.h"

#include <charconv>
#include <cmath>
#include <iterator>

namespace desktop {

std::string formatNumber(double number) {
  constexpr int decimals = 3;
  constexpr double largest = 1e9;  // far beyond any picture; keeps the digits in the buffer
  if (!std::isfinite(number)) return "0";
  char buffer[32];
  const auto [end, error] = std::to_chars(std::begin(buffer), std::end(buffer),
                                          std::fmin(std::fmax(number, -largest), largest),
                                          std::chars_format::fixed, decimals);
  std::string text(std::begin(buffer), end);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text == "-0" ? "0" : text;
}

}  // namespace desktop
