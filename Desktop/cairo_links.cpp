#include "Desktop/cairo_links.h"

#include <string>
#include <string_view>

#include "Desktop/cairo_paths.h"
#include "Desktop/number_text.h"

namespace desktop {
namespace {

bool isPlain(char character) {
  constexpr std::string_view plainSigns = "-._~:/?#[]@!$&*+,;=%";
  return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'Z') ||
         (character >= 'a' && character <= 'z') ||
         plainSigns.find(character) != std::string_view::npos;
}

// Addresses are ASCII already. What else comes from outside must not end the quotes or brackets
// that Cairo and PDF put around an address: "a b(c)'" becomes "a%20b%28c%29%27".
std::string encodeAddress(std::string_view address) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string encoded;
  for (const char character : address) {
    if (isPlain(character)) {
      encoded += character;
      continue;
    }
    const auto byte = static_cast<unsigned char>(character);
    (encoded += '%') += digits[byte >> 4U];
    encoded += digits[byte & 0xFU];
  }
  return encoded;
}

}  // namespace

void addLink(cairo_t* context, const todaychord::LinkArea& link) {
  std::string attributes = "rect=[";
  for (const double number : {link.frame.x, link.frame.y, link.frame.width, link.frame.height}) {
    attributes += formatNumber(drawable(number)) + ' ';
  }
  attributes += "] uri='" + encodeAddress(link.address) + '\'';
  cairo_tag_begin(context, CAIRO_TAG_LINK, attributes.c_str());
  cairo_tag_end(context, CAIRO_TAG_LINK);
}

}  // namespace desktop
