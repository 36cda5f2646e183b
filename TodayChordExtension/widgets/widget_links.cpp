#include "TodayChordExtension/widgets/widget_links.h"

#include <algorithm>
#include <charconv>
#include <system_error>

#include "TodayChordExtension/widgets/percent_encoding.h"
#include "Tonelake/foundation/text.h"

namespace todaychord {
namespace {

// zyndle://widget/chord?root=C&type=major&variant=0
// \_____prefix____/path \________query items_______/
// Links lie in hosts' pages and bookmarks: do not change.
constexpr std::string_view prefix = "zyndle://widget/";
constexpr std::string_view chordPath = "chord";
constexpr std::string_view rootItem = "root";
constexpr std::string_view typeItem = "type";
constexpr std::string_view variantItem = "variant";
constexpr std::string_view collectionPath = "collection";
constexpr std::string_view titleItem = "title";

std::string queryItem(std::string_view name, std::string_view value) {
  return std::string(name).append("=").append(percentEncode(value));
}

std::string linkTo(std::string_view path, const std::vector<std::string>& queryItems) {
  return std::string(prefix).append(path).append("?").append(tonelake::join(queryItems, "&"));
}

bool isName(std::string_view text) {
  return std::all_of(text.begin(), text.end(), isUnreserved);
}

bool equalsWithoutCase(std::string_view text, std::string_view lowerCase) {
  return std::equal(text.begin(), text.end(), lowerCase.begin(), lowerCase.end(),
                    [&](char a, char b) { return tonelake::lowercase(a) == b; });
}

// The value of the first query item of this name.
std::optional<std::string> valueOf(std::string_view name, std::string_view query) {
  for (const std::string_view item : tonelake::split(query, '&')) {
    const std::size_t equals = item.find('=');
    if (equals != std::string_view::npos && item.substr(0, equals) == name) {
      return percentDecode(item.substr(equals + 1));
    }
  }
  return std::nullopt;
}

std::optional<tonelake::WholeNumber> readWholeNumber(const std::string& text) {
  tonelake::WholeNumber number = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

std::optional<WidgetLink> parseChordLink(std::string_view query) {
  const auto root = valueOf(rootItem, query);
  const auto type = valueOf(typeItem, query);
  const auto variant = valueOf(variantItem, query);
  if (!root || !type || !variant) return std::nullopt;
  const auto note = tonelake::Note::fromRawValue(*root);
  const auto number = readWholeNumber(*variant);
  if (!note || !number) return std::nullopt;
  return Chord{*note, *type, *number};
}

std::optional<WidgetLink> parseCollectionLink(std::string_view query) {
  const auto title = valueOf(titleItem, query);
  if (!title) return std::nullopt;
  return CollectionLink{*title};
}

}  // namespace

std::string chordLink(const std::optional<Chord>& chord) {
  if (!chord || !tonelake::isValidUtf8(chord->chordType)) return namedDestination(homeDestination);
  return linkTo(chordPath, {queryItem(rootItem, chord->rootNote.rawValue()),
                            queryItem(typeItem, chord->chordType),
                            queryItem(variantItem, std::to_string(chord->variant))});
}

std::string collectionLink(std::string_view title) {
  if (!tonelake::isValidUtf8(title)) return namedDestination(collectionsDestination);
  return linkTo(collectionPath, {queryItem(titleItem, title)});
}

std::string namedDestination(std::string_view name) {
  return isName(name) ? std::string(prefix).append(name) : "/";
}

std::optional<WidgetLink> parseWidgetLink(std::string_view link) {
  if (!equalsWithoutCase(link.substr(0, prefix.size()), prefix)) return std::nullopt;
  link.remove_prefix(prefix.size());
  const std::size_t mark = link.find('?');
  const std::string_view path = link.substr(0, mark);
  const std::string_view query = mark == std::string_view::npos ? "" : link.substr(mark + 1);
  if (path == chordPath) return parseChordLink(query);
  if (path == collectionPath) return parseCollectionLink(query);
  if (mark != std::string_view::npos || path.empty() || !isName(path)) return std::nullopt;
  return NamedDestination{std::string(path)};
}

}  // namespace todaychord
