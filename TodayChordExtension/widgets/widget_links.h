#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "Tonelake/chords/chord.h"
#include "Tonelake/foundation/api.h"

// Pure functions: any thread may call.
namespace todaychord {

using tonelake::Chord;

// Where a tap leads: links of the scheme "zyndle" and the host "widget", which the app opens.
// Values are percent-encoded down to the unreserved characters.

/// "zyndle://widget/chord?root=F%E2%99%AF&type=minor%207th&variant=2"; "zyndle://widget/home"
/// without a chord or for a type that is no UTF-8.
TONELAKE_API std::string chordLink(const std::optional<Chord>& chord);

/// "zyndle://widget/collection?title=Warm-up"; "zyndle://widget/collections" for a title that is
/// no UTF-8.
TONELAKE_API std::string collectionLink(std::string_view title);

/// "zyndle://widget/tuner" for "tuner"; "/" for a name with characters other than the unreserved
/// ones. parseWidgetLink reads no place from "", "chord" and "collection".
TONELAKE_API std::string namedDestination(std::string_view name);

// The destinations without a place in a table of their own.
/// The app itself.
inline constexpr std::string_view homeDestination = "home";
/// All of the user's collections.
inline constexpr std::string_view collectionsDestination = "collections";
/// The search for a chord.
inline constexpr std::string_view searchDestination = "search";

/// A link to a collection.
struct CollectionLink {
  std::string title;  ///< decoded
  friend bool operator==(const CollectionLink&, const CollectionLink&) = default;
};
/// A link to a place of the app.
struct NamedDestination {
  std::string name;  ///< as given to namedDestination
  friend bool operator==(const NamedDestination&, const NamedDestination&) = default;
};
/// What a link leads to.
using WidgetLink = std::variant<Chord, CollectionLink, NamedDestination>;

/// What a link leads to, for hosts that open one: the reverse of the builders, but for the names
/// that namedDestination excepts. Scheme and host may be in capitals, query items in any order,
/// unknown ones are passed over, and of two with the same name the first counts. Nothing for any
/// other text. The chord need not be showable.
TONELAKE_API std::optional<WidgetLink> parseWidgetLink(std::string_view link);

}  // namespace todaychord
