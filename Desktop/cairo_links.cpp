#include "Desktop/cairo_links.h"

#include <string>
#include <string_view>

#include "Desktop/cairo_paths.h"
#include "Desktop/number_text.h"
#include "TodayChordExtension/widgets/percent_encoding.h"

namespace desktop {
namespace {

bool isPlain(char character) {
  constexpr std::string_view signsOfAddresses = ":/?#[]@!$&*+,;=%";
  return todaychord::isUnreserved(character) ||
         signsOfAddresses.find(character) != std::string_view::npos;
}

// Addresses are ASCII already. What else comes from outside must not end the quotes or brackets
// that Cairo and PDF put around an address: "a b(c)'" becomes "a%20b%28c%29%27".
std::string encodeAddress(std::string_view address) {
  std::string encoded;
  for (const char& character : address) {
    const std::string_view each(&character, 1);
    encoded += isPlain(character) ? std::string(each) : todaychord::percentEncode(each);
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
