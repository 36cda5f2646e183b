#include <algorithm>

#include "TodayChordExtension/widgets/percent_encoding.h"
#include "TodayChordExtension/widgets/widget_links.h"
#include "Tonelake/foundation/text.h"
#include "fuzz/fuzzer.h"

// Links: each text is read as one, and put into one.

namespace fuzz {
namespace {

using namespace todaychord;

struct LinkBuilder {
  std::string operator()(const Chord& chord) const { return chordLink(chord); }
  std::string operator()(const CollectionLink& link) const { return collectionLink(link.title); }
  std::string operator()(const NamedDestination& link) const { return namedDestination(link.name); }
};

bool isUnreservedOrPercent(char character) {
  return isUnreserved(character) || character == '%';
}

void examineAsLink(std::string_view text) {
  const auto link = parseWidgetLink(text);
  if (!link) return;
  require(parseWidgetLink(std::visit(LinkBuilder(), *link)) == link, "a link leads where it led");
}

void examineAsValue(std::string_view text) {
  const std::string encoded = percentEncode(text);
  require(std::all_of(encoded.begin(), encoded.end(), isUnreservedOrPercent),
          "an encoded text is unreserved");
  const bool isText = tonelake::isValidUtf8(text);
  const auto decoded = percentDecode(encoded);
  require(isText ? decoded == text : !decoded, "what is encoded is decoded, if it is UTF-8");
  const auto own = percentDecode(text);
  if (own) require(percentDecode(percentEncode(*own)) == own, "a decoded text is encoded again");

  const Chord chord{tonelake::Note::Bdf, std::string(text), -7};
  const CollectionLink collection{std::string(text)};
  require(parseWidgetLink(chordLink(chord)) ==
              (isText ? WidgetLink(chord) : NamedDestination{std::string(homeDestination)}),
          "a link leads to its chord");
  require(
      parseWidgetLink(collectionLink(text)) ==
          (isText ? WidgetLink(collection) : NamedDestination{std::string(collectionsDestination)}),
      "a link leads to its collection");
}

}  // namespace

void examine(std::string_view input) {
  examineAsLink(input);
  examineAsLink("zyndle://widget/" + std::string(input));
  examineAsValue(input);
}

std::vector<std::string> seeds() {
  return {chordLink(Chord{tonelake::Note::Fs, "minor 7th", 2}), collectionLink("Warm-up + »Blues«"),
          namedDestination("tuner"), "ZYNDLE://Widget/chord?variant=0&type=major&x&root=C&root=D",
          "collection?title=a+b%2Bc"};
}

}  // namespace fuzz
